#include "widgets/win32/list_tool_tip.h"

#include "widgets/win32/list_cell_text.h"
#include "widgets/win32/user_input.h"
#include "widgets/win32/wide_text.h"

namespace vellora::win32 {

namespace {

constexpr int widest_tip = 600; // pixels, before the text is broken into lines

// A tip that is shown would stay behind.
bool takes_list_away(const WindowMessage& message) {
    return message.id == WM_KILLFOCUS || (message.id == WM_SHOWWINDOW && !message.wparam);
}

} // namespace

void ListToolTip::watch(const WindowMessage& message) {
    if (message.id == WM_MOUSEMOVE)
        move_to(cell_at(message.lparam));
    else if (takes_list_away(message))
        move_to({});
    if (tip_ && message.id >= WM_MOUSEFIRST && message.id <= WM_MOUSELAST)
        relay(message);
}

ListToolTip::Cell ListToolTip::cell_at(LPARAM position) const {
    LVHITTESTINFO hit{};
    hit.pt = point_of(position);
    if (window_.native(LVM_SUBITEMHITTEST, 0, &hit) < 0)
        return {};
    return {hit.iItem, hit.iSubItem};
}

void ListToolTip::move_to(const Cell& cell) {
    if (cell == cell_)
        return;
    cell_ = cell;
    text_ = has_row(rows_, cell.row) ? rows_.tool_tip(cell.row, cell.column) : std::u16string_view();
    if (!tip_ && !text_.empty())
        create();
    if (tip_)
        SendMessageW(tip_.get(), TTM_POP, 0, 0);
}

void ListToolTip::create() {
    tip_.reset(CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                               WS_POPUP | TTS_NOPREFIX | TTS_ALWAYSTIP, CW_USEDEFAULT, CW_USEDEFAULT,
                               CW_USEDEFAULT, CW_USEDEFAULT, window_.handle(), nullptr, nullptr, nullptr));
    TTTOOLINFOW tool{};
    tool.cbSize = TTTOOLINFOW_V1_SIZE;
    tool.uFlags = TTF_IDISHWND;
    tool.hwnd = window_.handle();
    tool.uId = reinterpret_cast<UINT_PTR>(window_.handle());
    tool.lpszText = LPSTR_TEXTCALLBACKW;
    SendMessageW(tip_.get(), TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
    SendMessageW(tip_.get(), TTM_SETMAXTIPWIDTH, 0, widest_tip);
}

void ListToolTip::relay(const WindowMessage& message) const {
    MSG relayed{};
    relayed.hwnd = window_.handle();
    relayed.message = message.id;
    relayed.wParam = message.wparam;
    relayed.lParam = message.lparam;
    SendMessageW(tip_.get(), TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
}

std::optional<LRESULT> ListToolTip::answer(const WindowMessage& message) {
    auto* const header = message.id == WM_NOTIFY ? structure_at<NMHDR>(message.lparam) : nullptr;
    if (!header || !tip_ || header->hwndFrom != tip_.get())
        return std::nullopt;
    if (static_cast<UINT>(header->code) == TTN_GETDISPINFOW)
        reinterpret_cast<NMTTDISPINFOW*>(header)->lpszText = wide(text_);
    return LRESULT{0};
}

} // namespace vellora::win32
