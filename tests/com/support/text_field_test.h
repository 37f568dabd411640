// A control with three rows whose text field has the focus.
#pragma once

#include "com/support/open_list_test.h"
#include "support/container/text.h"

namespace vellora::test {

class TextFieldTest : public OpenListTest {
protected:
    void SetUp() override {
        OpenListTest::SetUp();
        for (const wchar_t* row : {L"Apple", L"apricot", L"Banana"})
            c().AddItem(Variant(row).get(), -1);
        focus_field();
    }

    HWND field() { return text_field(control()); }
    void focus_field() {
        SetFocus(field());
        container_.pump();
        site().log().take();
        events();
    }
    void press(WORD code) { key(field(), code); }
    std::wstring selected_text() {
        Bstr text;
        c().get_SelText(text.out());
        return text.text();
    }
};

} // namespace vellora::test
