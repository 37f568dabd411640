#include "methods_box.h"

#include "call_text.h"
#include "hosting/child_window.h"
#include "hosting/invocation.h"
#include "hosting/screen.h"

#include <algorithm>

namespace vellora::samples {

namespace {

enum Id { members_id = 300, call_id, set_id, first_argument_id };

HWND make_members_box(HWND parent) {
    return CreateWindowExW(0, L"ComboBox", L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST, 0,
                           0, 0, 0, parent, reinterpret_cast<HMENU>(static_cast<LONG_PTR>(members_id)),
                           GetModuleHandleW(nullptr), nullptr);
}

HWND make_result(HWND parent) {
    return CreateWindowExW(WS_EX_CLIENTEDGE, L"Edit", L"",
                           WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_VSCROLL | ES_MULTILINE | ES_READONLY, 0, 0, 0, 0,
                           parent, nullptr, GetModuleHandleW(nullptr), nullptr);
}

int text_height(HWND window, HFONT font) {
    const HDC canvas = GetDC(window);
    const HGDIOBJ before = SelectObject(canvas, font);
    TEXTMETRICW metrics{};
    GetTextMetricsW(canvas, &metrics);
    SelectObject(canvas, before);
    ReleaseDC(window, canvas);
    return metrics.tmHeight;
}

std::wstring signature(const Member& member) {
    std::wstring list;
    for (const Parameter& parameter : member.parameters)
        list += (list.empty() ? L"" : L", ") + parameter.name;
    return list.empty() ? member.name : member.name + L'(' + list + L')';
}

/// The values that arguments have names for.
std::wstring hint(const std::vector<Parameter>& parameters) {
    std::wstring text;
    for (const Parameter& parameter : parameters) {
        std::wstring list;
        for (const Constant& constant : parameter.constants)
            list += (list.empty() ? parameter.name + L": " : L", ") + constant.name + L" = " +
                    std::to_wstring(constant.value);
        text += list.empty() ? L"" : list + L"\r\n";
    }
    return text;
}

/// A typed argument; the name of a constant stands for its value.
Variant argument_of(const std::wstring& text, const Parameter& parameter) {
    for (const Constant& constant : parameter.constants)
        if (lstrcmpiW(constant.name.c_str(), text.c_str()) == 0)
            return value_of_text(std::to_wstring(constant.value), VT_I4);
    return value_of_text(text, parameter.type);
}

Variant missing() {
    Variant value;
    value.out()->vt = VT_ERROR;
    value.get()->scode = DISP_E_PARAMNOTFOUND;
    return value;
}

} // namespace

MethodsBox::MethodsBox(HWND parent, Shell& shell, HFONT font)
    : Pane(parent, WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, WS_EX_CONTROLPARENT), shell_(shell),
      line_(text_height(window(), font)), label_(make_label(window(), L"Methods, and properties of a running control")),
      members_box_(make_members_box(window())) {
    int id = first_argument_id;
    for (Argument& argument : arguments_) {
        argument.label = make_label(window(), L"");
        argument.field = make_text_field(window(), L"", id++);
        set_font(argument.label, font);
        set_font(argument.field, font);
    }
    call_button_ = make_button(window(), L"&Call", call_id);
    set_button_ = make_button(window(), L"&Set", set_id);
    result_ = make_result(window());
    for (const HWND one : {label_, members_box_, call_button_, set_button_, result_})
        set_font(one, font);
    show(nullptr);
}

void MethodsBox::show(IUnknown* control) {
    const Member* const before = chosen();
    const std::wstring name = before ? before->name : L"AddItem";
    members_.clear();
    control_.Reset();
    if (control && SUCCEEDED(control->QueryInterface(IID_PPV_ARGS(&control_))))
        members_ = members_of(control);
    SendMessageW(members_box_, CB_RESETCONTENT, 0, 0);
    for (const Member& member : members_)
        SendMessageW(members_box_, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(signature(member).c_str()));
    if (!choose(name) && !members_.empty())
        choose(members_.front().name);
    if (members_.empty())
        offer_arguments();
}

bool MethodsBox::choose(const std::wstring& member) {
    const auto found = std::ranges::find(members_, member, &Member::name);
    if (found == members_.end())
        return false;
    SendMessageW(members_box_, CB_SETCURSEL, static_cast<WPARAM>(found - members_.begin()), 0);
    offer_arguments();
    return true;
}

const Member* MethodsBox::chosen() const {
    const LRESULT index = SendMessageW(members_box_, CB_GETCURSEL, 0, 0);
    return index >= 0 && index < static_cast<LRESULT>(members_.size()) ? &members_[static_cast<std::size_t>(index)]
                                                                       : nullptr;
}

std::vector<Parameter> MethodsBox::parameters() const {
    const Member* const member = chosen();
    if (!member)
        return {};
    std::vector<Parameter> all = member->parameters;
    all.insert(all.end(), member->new_value.begin(), member->new_value.end());
    return all;
}

void MethodsBox::offer_arguments() {
    const Member* const member = chosen();
    const std::vector<Parameter> all = parameters();
    for (std::size_t i = 0; i < arguments_.size(); ++i) {
        const bool used = i < all.size();
        SetWindowTextW(arguments_[i].label, used ? all[i].name.c_str() : L"");
        SetWindowTextW(arguments_[i].field, used ? all[i].initial.c_str() : L"");
        ShowWindow(arguments_[i].label, used ? SW_SHOWNA : SW_HIDE);
        ShowWindow(arguments_[i].field, used ? SW_SHOWNA : SW_HIDE);
    }
    SetWindowTextW(call_button_, member && !member->is_method ? L"&Read" : L"&Call");
    EnableWindow(call_button_, member && (member->is_method || member->readable));
    EnableWindow(set_button_, member && !member->new_value.empty());
    show_result(hint(all));
    lay_out();
}

void MethodsBox::enter(std::size_t index, const std::wstring& argument) const {
    SetWindowTextW(arguments_[index].field, argument.c_str());
}

std::wstring MethodsBox::text_of(std::size_t index) const {
    const HWND field = arguments_[index].field;
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(field)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(field, text.data(), static_cast<int>(text.size()))));
    return text;
}

// Optional arguments at the end may be missing altogether; before others they are passed as missing.
std::vector<Variant> MethodsBox::values(const Member& member, bool sets) const {
    std::vector<Variant> result;
    for (std::size_t i = 0; i < member.parameters.size() && i < arguments_.size(); ++i) {
        const Parameter& parameter = member.parameters[i];
        const std::wstring text = text_of(i);
        result.push_back(parameter.optional && text.empty() ? missing() : argument_of(text, parameter));
    }
    if (sets && member.parameters.size() < arguments_.size())
        result.push_back(argument_of(text_of(member.parameters.size()), member.new_value.front()));
    return result;
}

void MethodsBox::call(bool sets) {
    const Member* const found = chosen();
    if (!found || !control_ || (sets && found->new_value.empty()))
        return;
    const Member member = *found; // the call may show another control
    const Microsoft::WRL::ComPtr<IDispatch> control = control_;
    const WORD kind = sets ? DISPATCH_PROPERTYPUT : member.is_method ? DISPATCH_METHOD : DISPATCH_PROPERTYGET;
    try {
        Variant result = invoke(control.Get(), member.id, kind, values(member, sets));
        show_result(sets || result.type() == VT_EMPTY ? L"Done" : text_of_value(*result.get()));
        shell_.say(member.name + (sets ? L" is set" : member.is_method ? L" was called" : L" was read"));
    } catch (const Failure& failure) {
        show_result(sentence(failure));
        shell_.say(member.name + L": " + sentence(failure));
    }
    if (kind != DISPATCH_PROPERTYGET)
        shell_.values_changed(true);
}

void MethodsBox::show_result(const std::wstring& text) const {
    SetWindowTextW(result_, text.c_str());
}

std::wstring MethodsBox::result() const {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(result_)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(result_, text.data(), static_cast<int>(text.size()))));
    return text;
}

bool MethodsBox::takes(MSG& message) const {
    return contains(message.hwnd) && IsDialogMessageW(window(), &message);
}

LRESULT MethodsBox::handle(UINT message, WPARAM wparam, LPARAM lparam) {
    switch (message) {
    case WM_SIZE:
        lay_out();
        return 0;
    case WM_SETFOCUS:
        SetFocus(members_box_);
        return 0;
    case WM_COMMAND:
        command(LOWORD(wparam), HIWORD(wparam));
        return 0;
    }
    return Pane::handle(message, wparam, lparam);
}

// Enter in a field comes as IDOK. It calls a method, and sets a property when it was pressed in the value.
void MethodsBox::command(int id, int notice) {
    const Member* const member = chosen();
    if (id == members_id && notice == CBN_SELCHANGE)
        return offer_arguments();
    if (id == call_id || id == set_id)
        return call(id == set_id);
    if (id != IDOK || !member)
        return;
    const std::size_t value = member->parameters.size();
    const bool in_value = value < arguments_.size() && GetFocus() == arguments_[value].field;
    call(!member->new_value.empty() && in_value);
}

int MethodsBox::wanted_height() const {
    constexpr int label_gap = 4, fields = 4, lines_of_result = 2;
    const int row = line_ + scaled(12);
    return line_ + scaled(label_gap) + row * (fields + 1) + lines_of_result * line_ + scaled(12);
}

void MethodsBox::lay_out() {
    constexpr LONG list_height = 260;
    const LONG width = inside().right, gap = scaled(6), field = line_ + scaled(8), row = line_ + scaled(12);
    const LONG button = scaled(62), label_width = width * 30 / 100;
    LONG top = line_ + scaled(4);
    move_window(label_, {0, 0, width, top});
    const LONG members_right = width - 2 * (button + gap);
    if (!SendMessageW(members_box_, CB_GETDROPPEDSTATE, 0, 0)) { // moving it closes its list
        move_window(members_box_, {0, top, members_right, top + field + scaled(list_height)});
        SendMessageW(members_box_, CB_SETDROPPEDWIDTH, static_cast<WPARAM>(width), 0);
    }
    move_window(call_button_, {members_right + gap, top - 1, members_right + gap + button, top + field});
    move_window(set_button_, {width - button, top - 1, width, top + field});
    top += row;
    for (std::size_t i = 0; i < std::min(parameters().size(), arguments_.size()); ++i, top += row) {
        move_window(arguments_[i].label, {0, top + scaled(3), label_width, top + field});
        move_window(arguments_[i].field, {label_width, top, width, top + field});
    }
    // The result has what the arguments leave.
    move_window(result_, {0, top, width, std::max(top, inside().bottom)});
}

} // namespace vellora::samples
