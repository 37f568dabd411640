// A native text box with the focus, and what is typed in it.
#pragma once

#include "com/support/peers_test.h"
#include "widgets/win32/text_box_peer.h"

namespace vellora::test {

/// A character beyond 16 bits.
inline constexpr std::u16string_view face = u"\U0001F600";

class TextBoxTypingTest : public PeersTest {
protected:
    TextBoxTypingTest() {
        box_.move({15, 15, 2400, 240});
        box_.set_visible(true);
        box_.listen(&journal_);
        box_.focus();
        take_lines();
    }

    void type(std::u16string_view text) { PeersTest::type(box_.window(), text); }
    void select(std::int32_t start, std::int32_t length) {
        box_.set_selection_start(start);
        box_.set_selection_length(length);
    }
    LRESULT send(UINT message, WPARAM wparam = 0, LPARAM lparam = 0) {
        return SendMessageW(window_of(box_), message, wparam, lparam);
    }
    /// The text box with a text of its own, nothing of it to be undone.
    void start_with(std::u16string_view text) {
        box_.set_text(text);
        send(EM_EMPTYUNDOBUFFER);
        take_lines();
    }

    TextBoxJournal journal_{lines_};
    win32::TextBoxPeer box_{surface_, win32::TextAlignment::left};
};

} // namespace vellora::test
