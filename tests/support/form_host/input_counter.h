// Counts the input messages this program has taken from its queue, so that a test can wait until what it did
// with the mouse or keyboard has arrived instead of guessing how long that takes.
#pragma once

#include <windows.h>

namespace vellora::test {

class InputCounter {
public:
    struct Counts {
        long button_down = 0;
        long button_up = 0;
        long key_down = 0;
        long key_up = 0;
        long wheel = 0;
    };
    /// Counts for the thread that makes it. One at a time.
    InputCounter();
    InputCounter(const InputCounter&) = delete;
    InputCounter& operator=(const InputCounter&) = delete;
    ~InputCounter();

    static const Counts& counts() noexcept;

private:
    static LRESULT CALLBACK see(int code, WPARAM removed, LPARAM message) noexcept;
    HHOOK hook_;
};

} // namespace vellora::test
