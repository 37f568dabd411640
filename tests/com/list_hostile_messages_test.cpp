// Messages that make no sense: whatever a program sends, the list stands.
#include "com/support/list_window_test.h"

#include <array>
#include <cstring>

namespace vellora::test {
namespace {

using HostileMessagesTest = ListWindowTest;

TEST_F(HostileMessagesTest, NoMessageWithAnyArgumentsBreaksTheList) {
    add_columns({u"a", u"b"});
    add_row({u"one", u"first"});
    add_row({u"two"});
    list->set_check_boxes(true);
    show(300, 200);
    constexpr std::array<LONG_PTR, 12> arguments{
        0, 1, 2, -1, -2, 7, 99, 0x7FFF, 0x7FFFFFFF, -0x7FFFFFFF - 1, 0xFFFF, 0x10000 - 1};
    for (UINT message = LVM_FIRST; message < LVM_FIRST + 0x100; ++message) {
        for (const LONG_PTR wparam : arguments) {
            for (const LONG_PTR lparam : arguments) {
                if (lparam <= 0xFFFF && lparam >= 0)
                    send(message, static_cast<WPARAM>(wparam), lparam);
            }
        }
    }
    for (const UINT message :
         {UINT{WM_NOTIFY}, UINT{WM_WINDOWPOSCHANGING}, UINT{WM_KEYDOWN}, UINT{WM_CHAR},
          UINT{WM_LBUTTONDBLCLK}, UINT{WM_MOUSEMOVE}, UINT{WM_VSCROLL}, UINT{WM_HSCROLL}}) {
        for (const LONG_PTR wparam : arguments)
            send(message, static_cast<WPARAM>(wparam), 0);
    }
    rows().clear();
    add_row({u"still there"});
    EXPECT_EQ(1, send(LVM_GETITEMCOUNT));
    EXPECT_EQ(u"still there", text_by_message(0, 0));
}

TEST_F(HostileMessagesTest, StructuresWithWildNumbersBreakNothing) {
    add_columns({u"a"});
    add_row({u"one"});
    list->set_check_boxes(true);
    show(300, 200);
    std::array<char, 256> wild;
    for (const int fill : {0x00, 0x7F, 0x80, 0xFF}) {
        for (UINT message = LVM_FIRST; message < LVM_FIRST + 0x100; ++message) {
            for (const int argument : {0, 1, -1, 0x7FFFFFFF}) {
                // Texts and lists of columns are the only pointers inside; those have to be none.
                std::memset(wild.data(), fill, wild.size());
                reinterpret_cast<LVITEMW*>(wild.data())->pszText = nullptr;
                reinterpret_cast<LVITEMW*>(wild.data())->puColumns = nullptr;
                reinterpret_cast<LVITEMW*>(wild.data())->piColFmt = nullptr;
                reinterpret_cast<LVCOLUMNW*>(wild.data())->pszText = nullptr;
                reinterpret_cast<LVFINDINFOW*>(wild.data())->psz = nullptr;
                send(message, static_cast<WPARAM>(argument), wild.data());
            }
        }
    }
    EXPECT_EQ(rows().count(), send(LVM_GETITEMCOUNT));
}

} // namespace
} // namespace vellora::test
