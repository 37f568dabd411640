#include "support/form_host/values.h"

#include "support/container/ambients.h"
#include "support/container/arrays.h"
#include "support/container/image_list_object.h"
#include "support/container/text.h"
#include "support/container/pictures.h"

#include <cmath>
#include <map>
#include <memory>

namespace vellora::test {
namespace {

// Three images of a size: "red", "green" and "blue". The program keeps them, as a form keeps its image lists.
Variant image_list(int size) {
    static std::map<int, ImageListObject> lists;
    const auto [found, made] =
        lists.try_emplace(size, size, std::vector<std::wstring>{L"red", L"green", L"blue"},
                          std::vector<COLORREF>{RGB(255, 0, 0), RGB(0, 128, 0), RGB(0, 0, 255)});
    return found->second.object().Get();
}

// Images of 16 pixels from files, by their keys.
Variant images_from_files(const Json& files) {
    static std::vector<std::unique_ptr<ImageListObject>> lists;
    constexpr int size = 16;
    std::vector<std::wstring> keys;
    HIMAGELIST images = ImageList_Create(size, size, ILC_COLOR24 | ILC_MASK, 0, 4);
    for (const auto& [key, path] : files.object()) {
        HBITMAP bitmap = static_cast<HBITMAP>(
            LoadImageW(nullptr, wide(path.text()).c_str(), IMAGE_BITMAP, size, size, LR_LOADFROMFILE));
        if (!bitmap)
            throw JsonError("no bitmap in " + path.text());
        ImageList_AddMasked(images, bitmap, RGB(255, 0, 255));
        DeleteObject(bitmap);
        keys.push_back(wide(key));
    }
    return lists.emplace_back(std::make_unique<ImageListObject>(images, keys))->object().Get();
}

Variant typed(const Json& value) {
    const auto& [kind, content] = *value.object().begin();
    if (kind == "short")
        return static_cast<std::int16_t>(content.number());
    if (kind == "single")
        return static_cast<float>(content.number());
    if (kind == "empty")
        return {};
    if (kind == "font")
        return make_font(wide(content.list().at(0).text()), content.list().at(1).number()).Get();
    if (kind == "picture") {
        const Json::List& size = content.list();
        return make_picture(size.at(0).text(),
                            {static_cast<LONG>(size.at(1).number()), static_cast<LONG>(size.at(2).number())})
            .Get();
    }
    if (kind == "picture_file")
        return load_picture(wide(content.text())).Get();
    if (kind == "images")
        return images_from_files(content);
    if (kind == "nothing")
        return static_cast<IDispatch*>(nullptr);
    if (kind == "image_list")
        return image_list(static_cast<int>(content.number()));
    if (kind == "texts") {
        std::vector<std::wstring> texts;
        for (const Json& text : content.list())
            texts.push_back(wide(text.text()));
        return text_array(texts);
    }
    throw JsonError("unknown kind of value \"" + kind + '"');
}

// The elements of an array below one index after the other, outermost dimension first.
Json elements(SAFEARRAY* array, VARTYPE type, std::vector<LONG>& index, UINT dimension) {
    Json::List result;
    LONG lower = 0;
    LONG upper = -1;
    SafeArrayGetLBound(array, dimension, &lower);
    SafeArrayGetUBound(array, dimension, &upper);
    for (LONG i = lower; i <= upper; ++i) {
        index[dimension - 1] = i;
        if (dimension < index.size()) {
            result.push_back(elements(array, type, index, dimension + 1));
            continue;
        }
        Variant element;
        if (type == VT_VARIANT) {
            SafeArrayGetElement(array, index.data(), element.out());
        } else if (SUCCEEDED(SafeArrayGetElement(array, index.data(), &element.raw().llVal))) {
            element.raw().vt = type;
        }
        result.push_back(to_json(element));
    }
    return result;
}

Json array_to_json(SAFEARRAY* array) {
    VARTYPE type = VT_EMPTY;
    SafeArrayGetVartype(array, &type);
    std::vector<LONG> index(SafeArrayGetDim(array));
    return elements(array, type, index, 1);
}

} // namespace

Variant to_variant(const Json& value) {
    if (value.is_null())
        return Variant::missing();
    if (value.is_bool())
        return value.truth();
    if (value.is_text())
        return wide(value.text());
    if (value.is_object())
        return typed(value);
    if (value.is_list())
        return variant_array(to_variants(value));
    const double number = value.number();
    return std::nearbyint(number) == number && std::fabs(number) < 2147483647.0
               ? Variant(static_cast<long>(number))
               : Variant(number);
}

std::vector<Variant> to_variants(const Json& list) {
    std::vector<Variant> result;
    if (list.is_null())
        return result;
    for (const Json& value : list.list())
        result.push_back(to_variant(value));
    return result;
}

Json to_json(const Variant& value) {
    const VARIANT& raw = value.get();
    if (raw.vt & VT_ARRAY)
        return array_to_json(raw.parray);
    switch (raw.vt) {
    case VT_EMPTY:
    case VT_NULL:
        return nullptr;
    case VT_BSTR:
        return utf8(value.text());
    case VT_BOOL:
        return value.truth();
    case VT_DISPATCH:
    case VT_UNKNOWN:
        return raw.punkVal ? Json(Json::Object{{"object", true}}) : Json();
    default:
        return value.real();
    }
}

Json to_json(const Failure& failure) {
    return Json::Object{{"number", failure.number()},
                        {"source", utf8(failure.source)},
                        {"description", utf8(failure.description)}};
}

Json to_json(const RECT& rect) {
    if (IsRectEmpty(&rect))
        return nullptr;
    return Json::List{rect.left, rect.top, rect.right, rect.bottom};
}

RECT to_rect(const Json& list) {
    const Json::List& numbers = list.list();
    if (numbers.size() != 4)
        throw JsonError("a place has four numbers");
    const auto at = [&](std::size_t i) { return static_cast<LONG>(numbers[i].number()); };
    return {at(0), at(1), at(0) + at(2), at(1) + at(3)};
}

} // namespace vellora::test
