// The field over the value of the chosen property: text, with a list of values where there are some to choose from.
#pragma once

#include <functional>
#include <string>
#include <vector>
#include <windows.h>

namespace vellora::samples {

class ValueEditor {
public:
    /// What the person wants of the value; `accept` says whether the value was taken.
    struct Wishes {
        std::function<bool()> accept;
        std::function<void()> restore;
        /// Up or down: to the property before or after.
        std::function<void(int)> go;
        /// Back to the list of properties.
        std::function<void()> leave;
    };

    /// Its windows are children of `list`, which also gets their notices.
    ValueEditor(HWND list, HFONT font, Wishes wishes);
    ValueEditor(const ValueEditor&) = delete;
    ValueEditor& operator=(const ValueEditor&) = delete;

    void offer(const std::vector<std::wstring>& choices, bool writable);
    void show(const RECT& place) const;
    void hide() const;
    bool visible() const { return IsWindowVisible(field()) != FALSE; }
    std::wstring text() const;
    /// As if the person had typed it.
    void set_text(const std::wstring& text) const;
    /// Shows a value as it is now. A field cannot show every text: it may have another one afterwards.
    void show_value(const std::wstring& value);
    /// Whether there is another text than the one that was shown.
    bool changed() const { return text() != shown_; }
    /// Gives it the focus, all of its text chosen.
    void enter() const;
    void drop_list() const;
    bool has_focus() const;
    bool has_choices() const noexcept { return with_choices_; }
    /// Whether a notice of the list's children tells of a choice in the dropped list.
    bool is_choice(HWND from, int notice) const noexcept { return from == combo_ && notice == CBN_SELENDOK; }
    bool is_left(HWND from, int notice) const noexcept;
    /// The height that a row of the list needs for it.
    int height() const;

private:
    HWND field() const noexcept { return with_choices_ ? combo_ : edit_; }
    HWND typed_into() const;
    static LRESULT CALLBACK keys(HWND window, UINT message, WPARAM wparam, LPARAM lparam, UINT_PTR id,
                                 DWORD_PTR self) noexcept;
    bool takes_key(WPARAM key);
    bool list_is_dropped() const;

    Wishes wishes_;
    HWND edit_ = nullptr;
    HWND combo_ = nullptr;
    bool with_choices_ = false;
    std::wstring shown_;
};

} // namespace vellora::samples
