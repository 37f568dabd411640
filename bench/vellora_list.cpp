#include "vellora_list.h"

#include "support/container/control_windows.h"
#include "support/container/text.h"

#include <commctrl.h>
#include <string>

namespace vellora::bench {

namespace {

/// The length of the text in an answer, which is freed.
std::size_t taken(VARIANT& answer) {
    const std::size_t units = SysStringLen(V_BSTR(&answer));
    VariantClear(&answer);
    return units;
}

} // namespace

void check(HRESULT result) {
    if (FAILED(result))
        throw std::runtime_error("a call failed: " + std::to_string(result));
}

VelloraList::VelloraList(test::Container& container, const std::wstring& name, int top)
    : container_(container) {
    auto& site = container.add(CLSID_Vellora, name, {20, top, 420, top + 24});
    vellora_ = site.as<_Vellora>();
    dispatch_ = vellora_;
    add_item_ = identifier(L"AddItem");
    list_ = identifier(L"List");
    check(vellora_->put_Columns(columns));
    long control = 0;
    check(vellora_->get_hWnd(&control));
    list_window_ = FindWindowExW(reinterpret_cast<HWND>(static_cast<LONG_PTR>(control)), nullptr, WC_LISTVIEWW, nullptr);
}

DISPID VelloraList::identifier(const wchar_t* member) {
    auto* name = const_cast<wchar_t*>(member);
    DISPID id = DISPID_UNKNOWN;
    check(dispatch_->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_USER_DEFAULT, &id));
    return id;
}

void VelloraList::add(const SampleRows& rows, int count) {
    for (int row = 0; row < count; ++row)
        check(vellora_->AddItem(rows.variant(static_cast<std::size_t>(row)), -1));
}

void VelloraList::add_by_dispatch(const SampleRows& rows, int count) {
    for (int row = 0; row < count; ++row) {
        VARIANT item = rows.variant(static_cast<std::size_t>(row));
        DISPPARAMS arguments{&item, nullptr, 1, 0};
        check(dispatch_->Invoke(add_item_, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &arguments,
                                nullptr, nullptr, nullptr));
    }
}

std::size_t VelloraList::read(short count) {
    std::size_t units = 0;
    for (short row = 0; row < count; ++row)
        for (short column = 1; column <= columns; ++column) {
            VARIANT answer{};
            check(vellora_->get_List(row, column, &answer));
            units += taken(answer);
        }
    return units;
}

std::size_t VelloraList::read_by_dispatch(short count) {
    std::size_t units = 0;
    for (short row = 0; row < count; ++row)
        for (short column = 1; column <= columns; ++column) {
            VARIANT reversed[2]{};
            V_VT(&reversed[0]) = V_VT(&reversed[1]) = VT_I2;
            V_I2(&reversed[0]) = column;
            V_I2(&reversed[1]) = row;
            DISPPARAMS arguments{reversed, nullptr, 2, 0};
            VARIANT answer{};
            check(dispatch_->Invoke(list_, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &arguments,
                                    &answer, nullptr, nullptr));
            units += taken(answer);
        }
    return units;
}

void VelloraList::write(short row, short column, const std::wstring& text) {
    check(vellora_->put_List(row, column, test::Variant(text).get()));
}

long VelloraList::find(const std::wstring& text, short column, bool partial) {
    const test::Variant target(text);
    long row = 0;
    check(vellora_->FindItem(target.get(), column, 1, partial ? vlPartialWord : vlWholeWord, &row));
    return row;
}

long VelloraList::new_index() {
    long row = 0;
    check(vellora_->get_NewIndex(&row));
    return row;
}

long VelloraList::list_index() {
    long row = 0;
    check(vellora_->get_ListIndex(&row));
    return row;
}

HWND VelloraList::field() {
    LONG window = 0;
    check(vellora_->get_hWnd(&window));
    return test::text_field(reinterpret_cast<HWND>(static_cast<LONG_PTR>(window)));
}

short VelloraList::checked_count() {
    short count = 0;
    check(vellora_->get_CheckedCount(&count));
    return count;
}

void VelloraList::checked_items() {
    test::Variant items;
    check(vellora_->CheckedItems(items.out()));
}

void VelloraList::open_and_close() {
    check(vellora_->ShowList());
    container_.pump();
    check(vellora_->HideList());
    container_.pump();
}

} // namespace vellora::bench
