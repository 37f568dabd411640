// Properties that pass straight through to the three text boxes, and the switch between them.
#pragma once

#include "control/core.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace vellora {

/// A left margin that stands for the one of the font (EC_USEFONTINFO in winuser.h).
inline constexpr std::int32_t margin_of_font = 0xFFFF;

/// The platform's text box cannot change its alignment once it exists, so there is one for each: elements 0 left,
/// 1 right, 2 centred. Exactly one of them is visible and live. No setter checks its value beyond what the text
/// boxes refuse; all report their property as changed.
class TextProperties {
public:
    explicit TextProperties(ControlCore& core);

    std::int32_t Alignment() const;
    /// Carries text, Locked, Enabled and the focus over to the new live text box without an event. A value outside 0
    /// to 2 leaves no text box visible and raises 340.
    void put_Alignment(std::int32_t alignment);

    std::int32_t MaxLength() const;
    void put_MaxLength(std::int32_t length);

    /// Pixels. The low 16 bits count.
    std::int32_t LeftMargin() const;
    void put_LeftMargin(std::int32_t pixels);
    /// Pixels. Error 6, after the value is stored, for 32768 or more.
    std::int32_t RightMargin() const;
    void put_RightMargin(std::int32_t pixels);

    bool Locked() const;
    void put_Locked(bool locked);

    std::u16string SelText() const;
    /// Nothing when the container forbids the text to change.
    void put_SelText(std::u16string_view text);
    std::int32_t SelStart() const;
    void put_SelStart(std::int32_t start);
    std::int32_t SelLength() const;
    void put_SelLength(std::int32_t length);

private:
    void show_live(std::int32_t old_alignment);
    void hide_all_but(const TextBox* shown);
    TextBox& text_box(std::int32_t alignment) const;
    void carry_over(std::int32_t old_alignment);
    void send_margins(std::uintptr_t which, std::intptr_t value);

    ControlCore& core_;
};

} // namespace vellora
