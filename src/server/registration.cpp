#include "server/registration.h"

#include "com/guard.h"
#include "com/ole.h"
#include "com/type_library.h"
#include "server/file_identity.h"
#include "server/module.h"
#include "server/registry_entries.h"

// In the platform's import library, but not in its headers.
extern "C" HRESULT WINAPI RegisterTypeLibForUser(ITypeLib* library, OLECHAR* path, OLECHAR* help_folder);
extern "C" HRESULT WINAPI UnRegisterTypeLibForUser(REFGUID library, WORD major, WORD minor, LCID locale, SYSKIND kind);

namespace vellora::server {

namespace {

constexpr wchar_t classes_root[] = L"Software\\Classes\\";
constexpr SYSKIND own_kind = sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32;
constexpr const wchar_t* own_file = sizeof(void*) == 8 ? L"\\0\\win64" : L"\\0\\win32";
constexpr const wchar_t* other_bitness_file = sizeof(void*) == 8 ? L"\\0\\win32" : L"\\0\\win64";
constexpr DWORD other_bitness_view = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;

HKEY root_of(Scope scope) {
    return scope == Scope::user ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
}

std::wstring classes(const std::wstring& key) {
    return classes_root + key;
}

void check_registry(LSTATUS status) {
    com::check(HRESULT_FROM_WIN32(static_cast<DWORD>(status)));
}

void write(Scope scope, const RegistryEntry& entry) {
    const auto bytes = static_cast<DWORD>((entry.value.size() + 1) * sizeof(wchar_t));
    check_registry(RegSetKeyValueW(root_of(scope), classes(entry.key).c_str(),
                                   entry.name.empty() ? nullptr : entry.name.c_str(), REG_SZ, entry.value.c_str(),
                                   bytes));
}

/// Empty when there is no such value.
std::wstring read(Scope scope, const std::wstring& key) {
    constexpr DWORD longest_path = 32767;
    std::wstring text(longest_path + 1, L'\0');
    auto bytes = static_cast<DWORD>(text.size() * sizeof(wchar_t));
    if (RegGetValueW(root_of(scope), classes(key).c_str(), nullptr, RRF_RT_REG_SZ, nullptr, text.data(), &bytes) !=
        ERROR_SUCCESS)
        return {};
    return text.c_str();
}

void remove(Scope scope, const std::wstring& key) {
    const LSTATUS status = RegDeleteTreeW(root_of(scope), classes(key).c_str());
    if (status != ERROR_FILE_NOT_FOUND)
        check_registry(status);
}

void register_type_library(Scope scope) {
    std::wstring path = com::module_path();
    com::ComPtr<ITypeLib> library;
    com::check(LoadTypeLibEx(path.c_str(), REGKIND_NONE, &library));
    com::check(scope == Scope::user ? RegisterTypeLibForUser(library.Get(), path.data(), nullptr)
                                    : RegisterTypeLib(library.Get(), path.data(), nullptr));
}

/// Another copy of the library that is there has taken the place over. One that cannot be reached is not: it looks like
/// a deleted one.
bool belongs_to_another(const std::wstring& path) {
    const auto there = identity_of(path);
    return there && there != identity_of(com::module_path());
}

bool class_belongs_to_another(Scope scope) {
    return belongs_to_another(read(scope, server_key()));
}

void forget_type_library(Scope scope) {
    // The platform learns from the registered file which interfaces to forget, and that file may be gone.
    const HRESULT renewed = com::guard([&] { register_type_library(scope); });
    const Module& own = module();
    // Who may register may unregister.
    if (scope == Scope::user)
        UnRegisterTypeLibForUser(own.type_library, own.major, own.minor, LOCALE_NEUTRAL, own_kind);
    else
        UnRegisterTypeLib(own.type_library, own.major, own.minor, LOCALE_NEUTRAL, own_kind);
    com::check(renewed);
}

/// Forgetting the type library takes the interfaces with it, for both bitnesses: whoever else needs them
/// keeps them.
void unregister_type_library(Scope scope) {
    const std::wstring key = type_library_key();
    // There are platforms that keep one registration of a type library for all users.
    const Scope place = read(scope, key + own_file).empty() ? Scope::machine : scope;
    const std::wstring path = read(place, key + own_file);
    if (path.empty() || belongs_to_another(path))
        return;
    if (place != scope && !read(place, server_key()).empty())
        return;
    if (!read(place, key + other_bitness_file).empty())
        remove(place, key + own_file);
    else if (class_belongs_to_another(scope))
        remove(place, key);
    else
        forget_type_library(scope);
}

/// Program identifiers are common to both bitnesses, classes are not.
bool other_bitness_registered(Scope scope) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(root_of(scope), classes(server_key()).c_str(), 0, KEY_READ | other_bitness_view, &key) !=
        ERROR_SUCCESS)
        return false;
    RegCloseKey(key);
    return true;
}

void remove_program_ids(Scope scope) {
    const std::wstring general = module().program_id;
    if (read(scope, general + L"\\CurVer") == module().versioned_program_id)
        remove(scope, general);
    remove(scope, module().versioned_program_id);
}

void remove_class(Scope scope) {
    remove(scope, class_key());
    for (const std::wstring& key : page_keys())
        remove(scope, key);
    // For a user it may have been the only class; a key with others in it stays.
    RegDeleteKeyW(root_of(scope), classes(L"CLSID").c_str());
    if (!other_bitness_registered(scope))
        remove_program_ids(scope);
}

void write_everything(Scope scope) {
    for (const RegistryEntry& entry : class_entries())
        write(scope, entry);
    for (const RegistryEntry& entry : page_entries())
        write(scope, entry);
    for (const RegistryEntry& entry : program_id_entries())
        write(scope, entry);
    register_type_library(scope);
}

} // namespace

void register_server(Scope scope) {
    // Who has no rights fails here, and has changed nothing.
    write(scope, class_entries().front());
    try {
        write_everything(scope);
    } catch (...) {
        com::guard([&] { unregister_server(scope); });
        throw;
    }
}

void unregister_server(Scope scope) {
    // The class first: it goes also where the platform does not let go of the type library.
    if (!class_belongs_to_another(scope))
        remove_class(scope);
    unregister_type_library(scope);
}

} // namespace vellora::server
