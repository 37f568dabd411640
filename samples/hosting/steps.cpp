#include "steps.h"

#include <windows.h>

namespace vellora::samples {

namespace {

void print(const std::wstring& line) {
    const int length = static_cast<int>(line.size());
    std::string bytes(line.size() * 3 + 1, '\0'); // UTF-8 has three bytes for a UTF-16 unit at most
    bytes.resize(static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, line.data(), length, bytes.data(),
                                                              static_cast<int>(bytes.size()), nullptr, nullptr)));
    bytes += '\n';
    DWORD written = 0;
    WriteFile(GetStdHandle(STD_OUTPUT_HANDLE), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

std::wstring mismatch(const std::wstring& expected, const std::wstring& actual) {
    return expected == actual ? L"" : L"expected \"" + expected + L"\", got \"" + actual + L'"';
}

} // namespace

void Steps::expect(const wchar_t* name, bool met) {
    report(name, met ? L"" : L"it is not so");
}

void Steps::expect_same(const wchar_t* name, const std::wstring& expected, const std::wstring& actual) {
    report(name, mismatch(expected, actual));
}

void Steps::expect_same(const wchar_t* name, long expected, long actual) {
    report(name, mismatch(std::to_wstring(expected), std::to_wstring(actual)));
}

void Steps::give_up(const std::wstring& reason) {
    report(L"the sample goes on", reason);
}

int Steps::end() const {
    print(L"1.." + std::to_wstring(count_));
    return failed_ == 0 ? 0 : 1;
}

void Steps::report(const wchar_t* name, const std::wstring& problem) {
    ++count_;
    failed_ += problem.empty() ? 0 : 1;
    print(problem.empty() ? L"ok " + std::wstring(name) : L"not ok " + std::wstring(name) + L": " + problem);
}

} // namespace vellora::samples
