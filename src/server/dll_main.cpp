// The entry points of the library.
#include "com/guard.h"
#include "com/live_object.h"
#include "server/class_factory.h"
#include "server/module.h"
#include "server/registration.h"

#include <string_view>

using namespace vellora;

namespace {

server::Scope scope_of(LPCWSTR command_line) {
    const std::wstring_view words = command_line ? command_line : L"";
    if (words == L"user")
        return server::Scope::user;
    if (!words.empty())
        throw com::ComFailure(E_INVALIDARG);
    return server::Scope::machine;
}

} // namespace

extern "C" {

BOOL WINAPI DllMain(HINSTANCE, DWORD reason, void*) {
    if (reason == DLL_PROCESS_ATTACH)
        com::set_error_source(server::module().name);
    return TRUE;
}

STDAPI DllGetClassObject(REFCLSID class_id, REFIID id, void** out) {
    if (!out)
        return E_POINTER;
    *out = nullptr;
    return server::ClassFactory::create(class_id, id, out);
}

STDAPI DllCanUnloadNow() {
    return com::library_in_use() ? S_FALSE : S_OK;
}

STDAPI DllRegisterServer() {
    return com::guard([] { server::register_server(server::Scope::machine); });
}

STDAPI DllUnregisterServer() {
    return com::guard([] { server::unregister_server(server::Scope::machine); });
}

STDAPI DllInstall(BOOL install, LPCWSTR command_line) {
    return com::guard([&] {
        const server::Scope scope = scope_of(command_line);
        if (install)
            server::register_server(scope);
        else
            server::unregister_server(scope);
    });
}
}
