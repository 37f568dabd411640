#include "control_factory.h"

#include "environment.h"
#include "failure.h"

namespace vellora::samples {

using Microsoft::WRL::ComPtr;

namespace {

/// Needs no registration. The library stays loaded for as long as the program runs.
ComPtr<IClassFactory> factory_of_library(const std::wstring& path) {
    using GetClassObject = HRESULT(WINAPI*)(REFCLSID, REFIID, void**);
    const HMODULE library = LoadLibraryW(windows_path(path).c_str());
    if (!library)
        throw Failure(L"The library " + path + L", which VELLORA_OCX names, cannot be loaded.");
    const auto entry = reinterpret_cast<GetClassObject>(
        reinterpret_cast<void*>(GetProcAddress(library, "DllGetClassObject")));
    if (!entry)
        throw Failure(path + L" is not a library of controls.");
    ComPtr<IClassFactory> factory;
    check(entry(__uuidof(Vellora), IID_PPV_ARGS(&factory)), L"Asking the library for its class");
    return factory;
}

ComPtr<IClassFactory> registered_factory() {
    ComPtr<IClassFactory> factory;
    const HRESULT found =
        CoGetClassObject(__uuidof(Vellora), CLSCTX_INPROC_SERVER, nullptr, IID_PPV_ARGS(&factory));
    if (found == REGDB_E_CLASSNOTREG)
        throw Failure(L"VelloraCTL.ocx is not registered. This does it: regsvr32 VelloraCTL.ocx");
    check(found, L"Finding the registered library");
    return factory;
}

} // namespace

ControlFactory::ControlFactory() {
    const std::wstring path = environment(L"VELLORA_OCX");
    factory_ = path.empty() ? registered_factory() : factory_of_library(path);
}

ComPtr<_Vellora> ControlFactory::create() const {
    ComPtr<_Vellora> control;
    check(factory_->CreateInstance(nullptr, IID_PPV_ARGS(&control)), L"Creating a control");
    return control;
}

ComPtr<IUnknown> ControlFactory::create_inside(IUnknown* outer) const {
    ComPtr<IUnknown> inner;
    check(factory_->CreateInstance(outer, IID_PPV_ARGS(&inner)), L"Creating a control inside another object");
    return inner;
}

} // namespace vellora::samples
