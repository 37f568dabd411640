// The library under test: loaded from its file without any registration, or found by its class identifier.
#pragma once

#include <string>
#include <windows.h>

#include <unknwn.h>
#include <wrl/client.h>

namespace vellora::test {

class Library {
public:
    /// Loads the file that the environment variable VELLORA_OCX names, once per process.
    /// Throws std::runtime_error when there is none.
    static Library& instance();

    HRESULT class_object(REFCLSID class_id, REFIID interface_id, void** object) const;
    /// Throws CallFailed when no instance can be made.
    Microsoft::WRL::ComPtr<IUnknown> create(REFCLSID class_id, IUnknown* outer = nullptr) const;
    /// S_OK when nothing of the library is in use any more, S_FALSE otherwise.
    HRESULT can_unload() const;
    const std::wstring& path() const noexcept { return path_; }

private:
    explicit Library(std::wstring path);
    template <class Function>
    Function entry(const char* name) const;

    std::wstring path_;
    HMODULE module_ = nullptr;
};

/// By way of the registry.
Microsoft::WRL::ComPtr<IUnknown> create_registered(REFCLSID class_id);

} // namespace vellora::test
