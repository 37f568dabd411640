// A second library beside the one under test: the same file in another folder.
#pragma once

#include <string>
#include <windows.h>

namespace vellora::test {

/// Runs it to its end. Returns its exit code.
DWORD run_program(std::wstring command_line);

/// How a library is asked to register itself, or to forget it.
class Registrar {
public:
    explicit Registrar(HMODULE module) noexcept : module_(module) {}
    /// For the machine.
    HRESULT register_it() const { return call("DllRegisterServer"); }
    HRESULT unregister_it() const { return call("DllUnregisterServer"); }
    HRESULT install(BOOL on, const wchar_t* command_line) const;

    /// The library under test.
    static Registrar of_library();

private:
    HRESULT call(const char* name) const;

    HMODULE module_;
};

/// A folder below the user's temporary one, whose name ends in a number nobody else has. It goes with the object,
/// and so do the files in it, unless the platform still holds one of them.
class TemporaryFolder {
public:
    explicit TemporaryFolder(const std::wstring& name);
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    const std::wstring& path() const noexcept { return path_; }
    /// Copies the file into it. Returns the copy's path.
    std::wstring take(const std::wstring& file) const;

private:
    std::wstring path_;
};

class LibraryCopy {
public:
    explicit LibraryCopy(const std::wstring& folder);
    LibraryCopy(const LibraryCopy&) = delete;
    LibraryCopy& operator=(const LibraryCopy&) = delete;
    ~LibraryCopy();

    const std::wstring& path() const noexcept { return path_; }
    Registrar registrar() const noexcept { return Registrar(module_); }

private:
    TemporaryFolder folder_;
    std::wstring path_;
    HMODULE module_;
};

} // namespace vellora::test
