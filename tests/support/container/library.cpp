#include "support/container/library.h"

#include "support/container/failure.h"
#include "support/container/text.h"

#include <algorithm>
#include <objbase.h>
#include <stdexcept>
#include <utility>

namespace vellora::test {

using Microsoft::WRL::ComPtr;

namespace {

// A path of the machine that hosts Wine is one of drive Z.
std::wstring windows_path(std::wstring path) {
    if (!path.empty() && path[0] == L'/')
        path = L"Z:" + path;
    std::replace(path.begin(), path.end(), L'/', L'\\');
    return path;
}

std::wstring named_path() {
    wchar_t buffer[MAX_PATH * 4] = L"";
    const DWORD length = GetEnvironmentVariableW(L"VELLORA_OCX", buffer, ARRAYSIZE(buffer));
    if (length == 0 || length >= ARRAYSIZE(buffer))
        throw std::runtime_error("VELLORA_OCX does not name the library to test");
    return windows_path(buffer);
}

} // namespace

Library& Library::instance() {
    static Library library(named_path());
    return library;
}

Library::Library(std::wstring path) : path_(std::move(path)), module_(LoadLibraryW(path_.c_str())) {
    if (!module_)
        throw std::runtime_error("cannot load " + utf8(path_) + ": error " + std::to_string(GetLastError()));
}

template <class Function>
Function Library::entry(const char* name) const {
    auto* address = reinterpret_cast<void*>(GetProcAddress(module_, name));
    if (!address)
        throw std::runtime_error(std::string("the library does not export ") + name);
    return reinterpret_cast<Function>(address);
}

HRESULT Library::class_object(REFCLSID class_id, REFIID interface_id, void** object) const {
    using GetClassObject = HRESULT(WINAPI*)(REFCLSID, REFIID, void**);
    return entry<GetClassObject>("DllGetClassObject")(class_id, interface_id, object);
}

ComPtr<IUnknown> Library::create(REFCLSID class_id, IUnknown* outer) const {
    ComPtr<IClassFactory> factory;
    ComPtr<IUnknown> object;
    HRESULT hr = class_object(class_id, IID_PPV_ARGS(&factory));
    if (SUCCEEDED(hr))
        hr = factory->CreateInstance(outer, IID_PPV_ARGS(&object));
    if (FAILED(hr))
        throw CallFailed({hr, L"Library::create", path_});
    return object;
}

HRESULT Library::can_unload() const {
    using CanUnloadNow = HRESULT(WINAPI*)();
    return entry<CanUnloadNow>("DllCanUnloadNow")();
}

ComPtr<IUnknown> create_registered(REFCLSID class_id) {
    ComPtr<IUnknown> object;
    const HRESULT hr = CoCreateInstance(class_id, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&object));
    if (FAILED(hr))
        throw CallFailed({hr, L"CoCreateInstance", L""});
    return object;
}

} // namespace vellora::test
