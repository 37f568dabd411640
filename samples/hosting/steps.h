// What a sample finds when it plays through its subject by itself: a line for each step, "ok NAME" or
// "not ok NAME: why", and at the end "1..N", how many they were.
#pragma once

#include <string>

namespace vellora::samples {

class Steps {
public:
    void expect(const wchar_t* name, bool met);
    void expect_same(const wchar_t* name, const std::wstring& expected, const std::wstring& actual);
    void expect_same(const wchar_t* name, long expected, long actual);
    /// What kept the sample from going on.
    void give_up(const std::wstring& reason);

    /// Prints the last line. The program's exit code: 0 when every step was met.
    int end() const;

private:
    void report(const wchar_t* name, const std::wstring& problem);

    int count_ = 0;
    int failed_ = 0;
};

} // namespace vellora::samples
