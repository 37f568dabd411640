#include "support/container/atl_host.h"

#include "support/container/failure.h"

#include <utility>

namespace vellora::test {
namespace {

using Attach = HRESULT(WINAPI*)(IUnknown* control, HWND window, IUnknown** host);
using Create = HRESULT(WINAPI*)(LPCOLESTR name, HWND window, IStream* stream, IUnknown** host,
                                IUnknown** control, REFIID events, IUnknown* sink);
using Start = BOOL(WINAPI*)();

template <class Function>
Function entry(const char* name) {
    static const HMODULE library = LoadLibraryW(L"atl.dll");
    auto* address = library ? reinterpret_cast<void*>(GetProcAddress(library, name)) : nullptr;
    if (!address)
        throw CallFailed({E_NOTIMPL, L"atl.dll", L"a function is missing"});
    return reinterpret_cast<Function>(address);
}

void must(HRESULT result, const wchar_t* step) {
    if (FAILED(result))
        throw CallFailed({result, L"AtlHost", step});
}

} // namespace

AtlHost::AtlHost(HWND parent, const RECT& place, IUnknown* control) : control_(control) {
    create_window(parent, place);
    must(entry<Attach>("AtlAxAttachControl")(control, window_, &host_), L"AtlAxAttachControl");
}

AtlHost::AtlHost(HWND parent, const RECT& place, const wchar_t* program_id) {
    create_window(parent, place);
    must(entry<Create>("AtlAxCreateControlEx")(program_id, window_, nullptr, &host_, &control_, IID_NULL,
                                               nullptr),
         L"AtlAxCreateControlEx");
}

AtlHost::~AtlHost() {
    destroy();
}

void AtlHost::create_window(HWND parent, const RECT& place) {
    entry<Start>("AtlAxWinInit")();
    window_ = CreateWindowExW(0, L"Static", nullptr, WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN, place.left,
                              place.top, place.right - place.left, place.bottom - place.top, parent, nullptr,
                              GetModuleHandleW(nullptr), nullptr);
}

void AtlHost::move(const RECT& place) {
    MoveWindow(window_, place.left, place.top, place.right - place.left, place.bottom - place.top, TRUE);
}

void AtlHost::destroy() {
    control_.Reset();
    host_.Reset();
    if (HWND window = std::exchange(window_, nullptr))
        DestroyWindow(window);
}

} // namespace vellora::test
