// Reads lines from the standard input in a thread of its own and hands each to the window thread, whose
// messages keep running meanwhile.
#pragma once

#include <functional>
#include <string>
#include <thread>
#include <windows.h>

namespace vellora::test {

class LineReader {
public:
    /// `take` runs in the thread that made the reader, for each line without its end. The end of the input
    /// counts as the line "quit", after which nothing more is read.
    explicit LineReader(std::function<void(const std::string&)> take);
    LineReader(const LineReader&) = delete;
    LineReader& operator=(const LineReader&) = delete;
    ~LineReader();

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept;
    void read() const;

    std::function<void(const std::string&)> take_;
    HWND window_;
    std::thread thread_;
};

} // namespace vellora::test
