#include "server/host_image_list.h"

#include "com/bstr.h"
#include "com/object_property.h"

namespace vellora::server {

namespace {

using com::Variant;

constexpr const wchar_t* handle_name = L"hImageList";
constexpr const wchar_t* images_name = L"ListImages";

// The handle is a number that anybody could have written. The platform looks at the memory it points to.
bool is_readable(const void* address) {
    MEMORY_BASIC_INFORMATION memory{};
    constexpr DWORD closed = PAGE_NOACCESS | PAGE_GUARD | PAGE_EXECUTE;
    return VirtualQuery(address, &memory, sizeof memory) != 0 && memory.State == MEM_COMMIT &&
           (memory.Protect & closed) == 0;
}

// 0 by 0 for a handle that is none.
bool is_usable(HIMAGELIST list) {
    int width = 0;
    int height = 0;
    return is_readable(list) && ImageList_GetIconSize(list, &width, &height) && width > 0 && height > 0;
}

bool is_integer(VARTYPE type) {
    switch (type) {
    case VT_I1:
    case VT_I2:
    case VT_I4:
    case VT_I8:
    case VT_INT:
    case VT_UI1:
    case VT_UI2:
    case VT_UI4:
    case VT_UI8:
    case VT_UINT:
        return true;
    default:
        return false;
    }
}

// Nothing for a value that is no whole number. Handles may come with their top bit as a sign.
std::optional<std::int64_t> whole_number(const Variant& value) {
    Variant number;
    if (value.is_object() || !is_integer(value.type()) ||
        FAILED(com::convert(value.get(), VT_I8, number))) {
        return std::nullopt;
    }
    return V_I8(&number.get());
}

HIMAGELIST handle_of(std::int64_t number) {
    return reinterpret_cast<HIMAGELIST>(static_cast<std::intptr_t>(number));
}

com::ComPtr<IDispatch> object_in(const std::optional<Variant>& value) {
    return value ? value->object_as<IDispatch>() : nullptr;
}

} // namespace

bool HostImageList::is_image_list() const {
    if (!com::has_member(object_.Get(), handle_name) || !com::has_member(object_.Get(), images_name)) {
        return false;
    }
    const auto value = com::read_property(object_.Get(), handle_name);
    if (!value) {
        return true;
    }
    const auto number = whole_number(*value);
    return number && (*number == 0 || is_usable(handle_of(*number)));
}

HIMAGELIST HostImageList::handle() const {
    const auto value = com::read_property(object_.Get(), handle_name);
    const auto number = value ? whole_number(*value) : std::nullopt;
    return number && is_usable(handle_of(*number)) ? handle_of(*number) : nullptr;
}

std::optional<std::int32_t> HostImageList::image(std::u16string_view key) const {
    const auto images = object_in(com::read_property(object_.Get(), images_name));
    const auto item = object_in(com::read_property(images.Get(), L"Item", Variant(key)));
    const auto index = com::read_property(item.Get(), L"Index");
    const auto place = index ? whole_number(*index) : std::nullopt;
    if (!place || *place < 1 || *place > INT32_MAX) {
        return std::nullopt;
    }
    return static_cast<std::int32_t>(*place - 1);
}

} // namespace vellora::server
