#include "server/own_library.h"

#include "com/bstr.h"
#include "com/control_host.h"
#include "com/guard.h"
#include "com/type_library.h"
#include "server/about_box.h"

#include <cstddef>
#include <string>
#include <vector>

namespace vellora::server {

namespace {

// U.S. English in Unicode: the one language of the resource.
constexpr const wchar_t* title_name = L"\\StringFileInfo\\040904B0\\ProductName";

std::vector<std::byte> version_resource() {
    const std::wstring path = com::module_path();
    DWORD ignored = 0;
    std::vector<std::byte> resource(GetFileVersionInfoSizeW(path.c_str(), &ignored));
    if (!GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(resource.size()), resource.data())) {
        throw com::ComFailure(HRESULT_FROM_WIN32(GetLastError()));
    }
    return resource;
}

template <class Value>
const Value* value_of(const std::vector<std::byte>& resource, const wchar_t* name) {
    void* value = nullptr;
    UINT length = 0;
    if (!VerQueryValueW(resource.data(), name, &value, &length) || length == 0) {
        throw com::ComFailure(HRESULT_FROM_WIN32(ERROR_RESOURCE_DATA_NOT_FOUND));
    }
    return static_cast<const Value*>(value);
}

} // namespace

LibraryVersion OwnLibrary::version() const {
    const auto resource = version_resource();
    const auto* const numbers = value_of<VS_FIXEDFILEINFO>(resource, L"\\");
    return {std::u16string(com::narrow_view(value_of<wchar_t>(resource, title_name))),
            HIWORD(numbers->dwFileVersionMS), LOWORD(numbers->dwFileVersionMS),
            HIWORD(numbers->dwFileVersionLS)};
}

void OwnLibrary::show_about_box(const AboutTexts& texts) {
    server::show_about_box(host_.extender().form_window(), texts);
}

} // namespace vellora::server
