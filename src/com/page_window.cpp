#include "com/page_window.h"

#include "com/bstr.h"
#include "com/guard.h"
#include "com/type_library.h"
#include "runtime/decimal.h"
#include "runtime/scoped_flag.h"

#include <algorithm>
#include <utility>

namespace vellora::com {

namespace {

// In dialog units, by the platform's own guide lines for dialogs.
constexpr LONG margin = 7;
constexpr LONG row_width = 208;
constexpr LONG row_height = 12;
constexpr LONG row_distance = 15;

constexpr int numbers_id = 100;
constexpr int first_field_id = 101;
constexpr LONG drop_height = 120;

constexpr DWORD page_style = DS_SHELLFONT | DS_CONTROL | WS_CHILD;
// Never shown: its font tells how large dialog units are.
constexpr DWORD measuring_style = DS_SHELLFONT | WS_POPUP;

/// A dialog without items, in the form the platform reads from a resource, where each begins at a whole DWORD.
struct alignas(DWORD) EmptyDialog {
    explicit constexpr EmptyDialog(DWORD style) : head{style, WS_EX_CONTROLPARENT, 0, 0, 0, 0, 0} {}

    DLGTEMPLATE head;
    WORD menu = 0;
    WORD window_class = 0;
    WORD title = 0;
    WORD points = 8;
    WCHAR face[13] = L"MS Shell Dlg";
};
static_assert(offsetof(EmptyDialog, menu) == 18, "the platform reads the template without gaps");

HWND make_dialog(DWORD style, HWND parent, DLGPROC procedure, void* context) {
    const EmptyDialog empty(style);
    const HWND dialog = CreateDialogIndirectParamW(module_instance(), &empty.head, parent, procedure,
                                                   reinterpret_cast<LPARAM>(context));
    if (!dialog)
        throw ComFailure(HRESULT_FROM_WIN32(GetLastError()));
    return dialog;
}

INT_PTR CALLBACK answer_nothing(HWND, UINT, WPARAM, LPARAM) noexcept {
    return FALSE;
}

RECT row_at(std::size_t row) {
    const LONG top = margin + static_cast<LONG>(row) * row_distance;
    return {margin, top, margin + row_width, top + row_height};
}

std::size_t rows_of(const PageClass& page) {
    const std::size_t numbered = page.numbered_properties.size();
    return page.properties.size() + numbered + (numbered != 0 ? 1 : 0);
}

std::u16string label_of(const PageModel::Refusal& refusal) {
    const std::u16string number = refusal.member->numbered ? u"(" + to_decimal(refusal.number) + u")" : u"";
    return refusal.member->name + number;
}

} // namespace

SIZE PageWindow::size(const PageClass& page) {
    const HWND dialog = make_dialog(measuring_style, nullptr, answer_nothing, nullptr);
    RECT last = row_at(rows_of(page) - 1);
    RECT whole = {0, 0, last.right + margin, last.bottom + margin};
    MapDialogRect(dialog, &whole);
    DestroyWindow(dialog);
    return {whole.right, whole.bottom};
}

void PageWindow::create(HWND parent, const RECT& place) {
    dialog_ = make_dialog(page_style, parent, procedure, this);
    SetWindowPos(dialog_, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_NOZORDER | SWP_NOACTIVATE);
    load();
}

void PageWindow::destroy() noexcept {
    if (dialog_)
        DestroyWindow(dialog_);
}

INT_PTR CALLBACK PageWindow::procedure(HWND dialog, UINT message, WPARAM wparam, LPARAM lparam) noexcept {
    if (message == WM_INITDIALOG)
        SetWindowLongPtrW(dialog, DWLP_USER, lparam);
    const auto page = reinterpret_cast<PageWindow*>(GetWindowLongPtrW(dialog, DWLP_USER));
    if (!page)
        return FALSE;
    guard([&] {
        if (message == WM_INITDIALOG)
            page->fill(dialog);
        else if (message == WM_COMMAND)
            page->on_command(LOWORD(wparam), HIWORD(wparam));
    });
    if (message == WM_NCDESTROY) {
        page->fields_.clear();
        page->dialog_ = page->numbers_ = nullptr;
    }
    return FALSE;
}

void PageWindow::fill(HWND dialog) {
    const RaisedFlag silent(loading_);
    std::size_t row = 0;
    int id = first_field_id;
    for (const PageMember& member : model_.members()) {
        if (member.numbered && !numbers_) {
            const LabelledRow parts = parts_of_row(row_at(row++));
            RECT box = parts.box;
            box.bottom += drop_height;
            add_dialog_item(dialog, L"Static", model_.page().number_label, 0, parts.label, -1);
            numbers_ = add_dialog_item(dialog, L"ComboBox", L"", WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST, box,
                                       numbers_id);
        }
        fields_.emplace_back(dialog, member, row_at(row++), std::exchange(id, id + ids_per_field));
    }
}

void PageWindow::load() {
    if (!dialog_)
        return;
    const RaisedFlag silent(loading_);
    load_numbers();
    show_fields(false);
    show_fields(true);
}

void PageWindow::show_fields(bool numbered) const {
    for (const PageField& field : fields_)
        if (field.member().numbered == numbered)
            field.show(model_.value(field.member(), chosen_number()));
}

/// As many as there are now, the chosen one still chosen where it can be.
void PageWindow::load_numbers() {
    if (!numbers_)
        return;
    const std::int32_t count = model_.count();
    const std::int32_t chosen = std::clamp(chosen_number(), 1, std::max(count, 1));
    SendMessageW(numbers_, CB_RESETCONTENT, 0, 0);
    for (std::int32_t number = 1; number <= count; ++number)
        SendMessageW(numbers_, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(to_decimal(number).c_str()));
    SendMessageW(numbers_, CB_SETCURSEL, static_cast<WPARAM>(chosen - 1), 0);
}

std::int32_t PageWindow::chosen_number() const {
    return numbers_ ? static_cast<std::int32_t>(SendMessageW(numbers_, CB_GETCURSEL, 0, 0)) + 1 : 0;
}

void PageWindow::on_command(int id, int notification) {
    if (loading_)
        return;
    if (id == numbers_id) {
        const RaisedFlag silent(loading_);
        if (notification == CBN_SELCHANGE)
            show_fields(true);
        return;
    }
    const auto index = static_cast<std::size_t>(id - first_field_id) / ids_per_field;
    if (id < first_field_id || index >= fields_.size())
        return;
    const PageField& field = fields_[index];
    if ((id - first_field_id) % ids_per_field != 0)
        field.choose_color();
    else if (field.is_change(notification))
        on_change(field);
}

void PageWindow::on_change(const PageField& field) {
    // While there is nothing to count, a value would be that of nothing, and be refused for ever.
    if (field.member().numbered && chosen_number() == 0)
        return;
    model_.change(field.member(), chosen_number(), field.entered());
    if (field.member().id == model_.page().counted_by) {
        const RaisedFlag silent(loading_);
        load_numbers();
        show_fields(true);
    }
    listener_.page_changed();
}

void PageWindow::complain(const PageModel::Refusal& refusal) {
    if (!dialog_)
        return;
    if (refusal.member->numbered)
        SendMessageW(numbers_, CB_SETCURSEL, static_cast<WPARAM>(refusal.number - 1), 0);
    load();
    const std::u16string text = label_of(refusal) + u": " + refusal.reason;
    MessageBoxW(GetAncestor(dialog_, GA_ROOT), wide(text.c_str()), model_.page().title,
                MB_OK | MB_ICONEXCLAMATION);
    go_to(refusal.member->id);
}

bool PageWindow::go_to(DISPID property) {
    for (const PageField& field : fields_)
        if (field.member().id == property) {
            SendMessageW(dialog_, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(field.box()), TRUE);
            return true;
        }
    return false;
}

} // namespace vellora::com
