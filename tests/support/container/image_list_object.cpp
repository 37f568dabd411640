#include "support/container/image_list_object.h"

#include "support/container/failure.h"

#include <algorithm>

namespace vellora::test {
namespace {

constexpr HRESULT element_not_found = static_cast<HRESULT>(0x800A8B11);

// A filled square with a white border of one pixel; magenta around it is transparent.
HBITMAP draw(int size, COLORREF color) {
    HDC screen = GetDC(nullptr);
    HDC dc = CreateCompatibleDC(screen);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, size, size);
    HGDIOBJ before = SelectObject(dc, bitmap);
    const auto fill = [&](int margin, COLORREF with) {
        const RECT area{margin, margin, size - margin, size - margin};
        HBRUSH brush = CreateSolidBrush(with);
        FillRect(dc, &area, brush);
        DeleteObject(brush);
    };
    fill(0, RGB(255, 0, 255));
    fill(1, RGB(255, 255, 255));
    fill(2, color);
    SelectObject(dc, before);
    DeleteDC(dc);
    ReleaseDC(nullptr, screen);
    return bitmap;
}

HIMAGELIST make_images(int size, const std::vector<COLORREF>& colors) {
    HIMAGELIST images =
        ImageList_Create(size, size, ILC_COLOR24 | ILC_MASK, static_cast<int>(colors.size()), 4);
    for (const COLORREF color : colors) {
        HBITMAP bitmap = draw(size, color);
        ImageList_AddMasked(images, bitmap, RGB(255, 0, 255));
        DeleteObject(bitmap);
    }
    return images;
}

Variant handle_value(HIMAGELIST images) {
    Variant value;
    value.raw().vt = sizeof images == 8 ? VT_I8 : VT_I4;
    value.raw().llVal = static_cast<LONGLONG>(reinterpret_cast<LONG_PTR>(images));
    return value;
}

} // namespace

ImageListObject::ImageListObject(int size, std::vector<std::wstring> image_keys,
                                 const std::vector<COLORREF>& colors)
    : ImageListObject(make_images(size, colors), std::move(image_keys)) {}

ImageListObject::ImageListObject(HIMAGELIST images, std::vector<std::wstring> image_keys)
    : keys(std::move(image_keys)), images_(images) {
    list_images_->indexed(L"Item", [this](const std::vector<Variant>& indexes) {
        return item ? item(indexes.at(0)) : find(indexes.at(0));
    });
    list_images_->property(L"Count", [this] { return static_cast<long>(keys.size()); });
    auto* const made = new NamedDispatch;
    object_ = made;
    made->property(L"hImageList", [this] { return handle ? handle() : handle_value(images_); });
    made->property(L"ListImages", [this] {
        return collection ? collection() : Variant(static_cast<IDispatch*>(list_images_.Get()));
    });
}

ImageListObject::~ImageListObject() {
    ImageList_Destroy(images_);
}

void ImageListObject::destroy_images() {
    ImageList_Destroy(images_);
    images_ = nullptr;
}

void ImageListObject::replace_images(int size, const std::vector<COLORREF>& colors) {
    HIMAGELIST made = make_images(size, colors);
    destroy_images();
    images_ = made;
}

Variant ImageListObject::find(const Variant& key) const {
    if (key.type() != VT_BSTR)
        return item_at(static_cast<std::size_t>(key.number()) - 1);
    const auto found = std::find(keys.begin(), keys.end(), key.text());
    if (found == keys.end())
        throw CallFailed({element_not_found, L"ListImages", L"Element not found"});
    return item_at(static_cast<std::size_t>(found - keys.begin()));
}

Variant ImageListObject::item_at(std::size_t place) const {
    Microsoft::WRL::ComPtr<NamedDispatch> image(new NamedDispatch);
    image->property(L"Index", [place] { return static_cast<long>(place) + 1; });
    image->property(L"Key", [key = keys.at(place)] { return Variant(key); });
    return static_cast<IDispatch*>(image.Get());
}

} // namespace vellora::test
