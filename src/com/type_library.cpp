#include "com/type_library.h"

#include "com/guard.h"

#include <mutex>
#include <utility>

// The linker's name for the start of this module in memory.
extern "C" IMAGE_DOS_HEADER __ImageBase;

namespace vellora::com {

namespace {

std::mutex cache_lock;
std::weak_ptr<const TypeLibrary> cache;

ComPtr<ITypeLib> load_own_library() {
    ComPtr<ITypeLib> library;
    check(LoadTypeLibEx(module_path().c_str(), REGKIND_NONE, &library));
    return library;
}

ComPtr<ITypeInfo> type_of(ITypeLib* library, REFGUID id) {
    ComPtr<ITypeInfo> type;
    check(library->GetTypeInfoOfGuid(id, &type));
    return type;
}

} // namespace

InterfaceInfo::InterfaceInfo(ComPtr<ITypeInfo> info) : type(std::move(info)), members(type.Get()) {}

std::shared_ptr<const TypeLibrary> TypeLibrary::shared(REFIID default_interface) {
    const std::lock_guard lock(cache_lock);
    std::shared_ptr<const TypeLibrary> library = cache.lock();
    if (!library)
        cache = library = std::make_shared<const TypeLibrary>(default_interface);
    return library;
}

TypeLibrary::TypeLibrary(REFIID default_interface)
    : library_(load_own_library()), default_interface_(type_of(library_.Get(), default_interface)) {}

ComPtr<ITypeInfo> TypeLibrary::type(REFGUID id) const {
    return type_of(library_.Get(), id);
}

HINSTANCE module_instance() noexcept {
    return reinterpret_cast<HINSTANCE>(&__ImageBase);
}

std::wstring module_path() {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length =
            GetModuleFileNameW(module_instance(), path.data(), static_cast<DWORD>(path.size()));
        if (length == 0)
            throw ComFailure(E_FAIL);
        if (length < path.size())
            return path.substr(0, length);
        path.resize(path.size() * 2);
    }
}

} // namespace vellora::com
