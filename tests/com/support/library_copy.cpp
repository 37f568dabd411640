#include "com/support/library_copy.h"

#include "support/container/library.h"

#include <gtest/gtest.h>

namespace vellora::test {

namespace {

template <class Function>
Function entry(HMODULE module, const char* name) {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, name)));
}

std::wstring temporary_path() {
    wchar_t path[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, path);
    return path;
}

} // namespace

DWORD run_program(std::wstring command_line) {
    STARTUPINFOW start = {};
    start.cb = sizeof start;
    PROCESS_INFORMATION process = {};
    EXPECT_TRUE(
        CreateProcessW(nullptr, command_line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &process));
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = 0;
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return code;
}

HRESULT Registrar::install(BOOL on, const wchar_t* command_line) const {
    const auto function = entry<HRESULT(WINAPI*)(BOOL, LPCWSTR)>(module_, "DllInstall");
    return function ? function(on, command_line) : E_NOINTERFACE;
}

HRESULT Registrar::call(const char* name) const {
    const auto function = entry<HRESULT(WINAPI*)()>(module_, name);
    return function ? function() : E_NOINTERFACE;
}

Registrar Registrar::of_library() {
    return Registrar(GetModuleHandleW(Library::instance().path().c_str()));
}

TemporaryFolder::TemporaryFolder(const std::wstring& name) {
    int number = 0;
    do {
        path_ = temporary_path() + name + L" " + std::to_wstring(++number);
    } while (!CreateDirectoryW(path_.c_str(), nullptr) && GetLastError() == ERROR_ALREADY_EXISTS);
}

TemporaryFolder::~TemporaryFolder() {
    WIN32_FIND_DATAW found = {};
    const HANDLE search = FindFirstFileW((path_ + L"\\*").c_str(), &found);
    do {
        DeleteFileW((path_ + L"\\" + found.cFileName).c_str());
    } while (FindNextFileW(search, &found));
    FindClose(search);
    RemoveDirectoryW(path_.c_str());
}

std::wstring TemporaryFolder::take(const std::wstring& file) const {
    const std::wstring copy = path_ + file.substr(file.rfind(L'\\'));
    EXPECT_TRUE(CopyFileW(file.c_str(), copy.c_str(), TRUE)) << GetLastError();
    return copy;
}

LibraryCopy::LibraryCopy(const std::wstring& folder)
    : folder_(folder), path_(folder_.take(Library::instance().path())), module_(LoadLibraryW(path_.c_str())) {
    EXPECT_NE(nullptr, module_) << GetLastError();
}

LibraryCopy::~LibraryCopy() {
    FreeLibrary(module_);
}

} // namespace vellora::test
