// Reads a control and its open list from outside and prints what there is, one thing a line. Arguments: the window of
// the control and that of the list, as numbers.
#include "support/list_reader/remote_list.h"

#include <oleacc.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <wrl/client.h>

namespace vellora::test {

namespace {

using Microsoft::WRL::ComPtr;

HWND window_of(const char* number) {
    return reinterpret_cast<HWND>(static_cast<ULONG_PTR>(std::strtoull(number, nullptr, 10)));
}

void print(const char* what, const RECT& rect) {
    std::printf("%s %ld,%ld,%ld,%ld\n", what, rect.left, rect.top, rect.right, rect.bottom);
}

void print_rows(const RemoteList& list) {
    std::printf("rows %d\n", list.rows());
    for (int row = 0; row < list.rows(); ++row) {
        const UINT state = list.state(row);
        std::printf("row %d%s%s box %u\n", row, state & LVIS_SELECTED ? " selected" : "",
                    state & LVIS_FOCUSED ? " focused" : "", (state & LVIS_STATEIMAGEMASK) >> 12);
        for (int column = 0; column < list.columns(); ++column)
            std::printf("cell %d.%d %ls\n", row, column, list.text(row, column).c_str());
    }
    print("first row at", list.row_rect(0));
    print("cell 1.1 at", list.cell_rect(1, 1));
    std::printf("selected %d\n", list.next(-1, LVNI_SELECTED));
    std::printf("focused %d\n", list.next(-1, LVNI_FOCUSED));
    std::printf("boxes %s\n", SendMessageW(list.window(), LVM_GETIMAGELIST, LVSIL_STATE, 0) ? "drawn" : "none");
}

void print_headers(const RemoteList& list) {
    std::printf("headers %d\n", list.columns());
    for (int column = 0; column < list.columns(); ++column)
        std::printf("header %d %ls\n", column, list.caption(column).c_str());
    print("header 1 at", list.header_rect(1));
    std::printf("order");
    for (const int column : list.order())
        std::printf(" %d", column);
    std::printf("\n");
}

VARIANT child(long number) {
    VARIANT id{};
    id.vt = VT_I4;
    id.lVal = number;
    return id;
}

// Which of this there is for a list depends on the system, so a test has to know what it may expect.
void print_object(const char* what, HWND window) {
    ComPtr<IAccessible> object;
    if (AccessibleObjectFromWindow(window, OBJID_CLIENT, IID_IAccessible,
                                   reinterpret_cast<void**>(object.GetAddressOf())) != S_OK) {
        std::printf("%s object none\n", what);
        return;
    }
    VARIANT role{};
    object->get_accRole(child(CHILDID_SELF), &role);
    BSTR name = nullptr;
    object->get_accName(child(CHILDID_SELF), &name);
    long children = -1;
    object->get_accChildCount(&children);
    BSTR first = nullptr;
    object->get_accName(child(1), &first);
    std::printf("%s object role %ld name %ls children %ld first %ls\n", what, role.vt == VT_I4 ? role.lVal : -1,
                name ? name : L"", children, first ? first : L"");
    SysFreeString(name);
    SysFreeString(first);
}

int read(HWND control, HWND list_window) {
    {
        const RemoteList list(list_window);
        print_rows(list);
        print_headers(list);
        print_object("header", list.header());
    }
    print_object("list", list_window);
    print_object("control", control);
    return 0;
}

} // namespace

} // namespace vellora::test

int main(int count, char** arguments) {
    if (count != 3 || FAILED(CoInitialize(nullptr)))
        return 2;
    try {
        return vellora::test::read(vellora::test::window_of(arguments[1]), vellora::test::window_of(arguments[2]));
    } catch (const std::exception& error) {
        std::printf("%s\n", error.what());
        return 1;
    }
}
