#include "com/support/open_list_test.h"

#include "support/container/text.h"

namespace vellora::test {

void OpenListTest::SetUp() { use(place()); }

void OpenListTest::use(Site& site) {
    site_ = &site;
    control_ = vellora(site);
    site.events().ignore("MouseMove");
}

Site& OpenListTest::place_with_check_boxes() {
    const ComPtr<PropertyBag> bag(new PropertyBag);
    bag->put(L"Columns", 1);
    bag->put(L"CheckBoxes", true);
    return container_.load(__uuidof(Vellora), *bag.Get(), L"Checked", {20, 60, 220, 84});
}

void OpenListTest::fill(int rows, short columns) {
    if (columns > 1)
        c().put_Columns(columns);
    for (int row = 0; row < rows; ++row) {
        std::vector<std::wstring> cells;
        for (int column = 1; column <= columns; ++column)
            cells.push_back(L"row " + std::to_wstring(row) + L"." + std::to_wstring(column));
        c().AddItem(text_array(cells).get(), -1);
    }
    events();
}

void OpenListTest::open() {
    ASSERT_EQ(S_OK, c().ShowList());
    container_.pump();
}

void OpenListTest::click(HWND window, const RECT& on_screen) {
    POINT middle{(on_screen.left + on_screen.right) / 2, (on_screen.top + on_screen.bottom) / 2};
    ScreenToClient(window, &middle);
    const LPARAM where = MAKELPARAM(middle.x, middle.y);
    PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, where);
    container_.pump();
    PostMessageW(window, WM_LBUTTONUP, 0, where);
    container_.pump();
}

void OpenListTest::click_button() {
    HWND button = drop_button(control());
    click(button, screen_rect(button));
}

void OpenListTest::key(HWND window, WORD code) {
    PostMessageW(window, WM_KEYDOWN, code, 1);
    container_.pump();
    PostMessageW(window, WM_KEYUP, code, static_cast<LPARAM>(0xC0000001U));
    container_.pump();
}

long OpenListTest::list_index() {
    LONG index = -2;
    c().get_ListIndex(&index);
    return index;
}

std::wstring OpenListTest::text() {
    Bstr text;
    c().get_Text(text.out());
    return text.text();
}

HWND OpenListTest::make_edit() {
    return CreateWindowExW(0, L"Edit", L"elsewhere", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 20, 200, 100, 20,
                           container_.form().window(), nullptr, GetModuleHandleW(nullptr), nullptr);
}

} // namespace vellora::test
