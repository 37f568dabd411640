#include "com/support/list_window_test.h"

#include "runtime/host_error.h"
#include "widgets/win32/notification_router.h"
#include "widgets/win32/screen_metrics.h"
#include "widgets/win32/text_measure.h"
#include "widgets/win32/wide_text.h"

#include <algorithm>
#include <array>

namespace vellora::test {

namespace {

constexpr wchar_t class_name[] = L"VelloraTestRoutingWindow";

void register_class(WNDPROC procedure) {
    WNDCLASSW window_class{};
    window_class.lpfnWndProc = procedure;
    window_class.lpszClassName = class_name;
    RegisterClassW(&window_class);
}

int faults = 0;

LONG CALLBACK count_fault(EXCEPTION_POINTERS* exception) noexcept {
    if (exception->ExceptionRecord->ExceptionCode == EXCEPTION_ACCESS_VIOLATION)
        ++faults;
    return EXCEPTION_CONTINUE_SEARCH;
}

} // namespace

FaultCounter::FaultCounter() : handler_(AddVectoredExceptionHandler(1, count_fault)) {
    faults = 0;
}

FaultCounter::~FaultCounter() {
    RemoveVectoredExceptionHandler(handler_);
}

int FaultCounter::count() const {
    return faults;
}

RoutingWindow::RoutingWindow() {
    register_class(procedure);
    handle_ = CreateWindowExW(0, class_name, L"", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, 0, 0, 600, 500,
                              nullptr, nullptr, nullptr, nullptr);
    SetWindowLongPtrW(handle_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

RoutingWindow::~RoutingWindow() {
    destroy();
}

void RoutingWindow::destroy() {
    if (handle_)
        DestroyWindow(handle_);
    handle_ = nullptr;
}

int RoutingWindow::notifications(UINT code) const {
    return static_cast<int>(std::count(codes_.begin(), codes_.end(), code));
}

LRESULT CALLBACK RoutingWindow::procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept {
    auto* const self = reinterpret_cast<RoutingWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_NOTIFY) {
        if (self)
            self->codes_.push_back(reinterpret_cast<const NMHDR*>(lparam)->code);
        if (const auto answer = win32::route_notification(lparam))
            return *answer;
    }
    return DefWindowProcW(window, message, wparam, lparam);
}

void ListRecorder::note(std::string what) {
    heard.push_back(std::move(what));
    const auto act = meanwhile; // it may end this recorder's list, and be replaced
    act();
}

void ListRecorder::list_key_down(std::int16_t& key_code, std::int16_t shift) {
    const std::string what = "key " + std::to_string(key_code) + "+" + std::to_string(shift);
    change_key(key_code);
    note(what);
}

void ListRecorder::list_key_press(std::int16_t& key_ascii) {
    const std::string what = "press " + std::to_string(key_ascii);
    change_key(key_ascii);
    note(what);
}

ListWindowTest::ListWindowTest() {
    tracker_.set_home(parent.handle());
    renew_list();
}

void ListWindowTest::renew_list() {
    list = std::make_unique<win32::ListViewPeer>(parent.handle(), tracker_, compare_);
    list->listen(&recorder);
}

ListWindowTest::~ListWindowTest() {
    list.reset();
    parent.destroy();
    EXPECT_EQ(0, faults_.count()) << "memory faults inside window procedures";
}

HWND ListWindowTest::header() const {
    return reinterpret_cast<HWND>(send(LVM_GETHEADER));
}

LRESULT ListWindowTest::send(UINT message, WPARAM wparam, LPARAM lparam) const {
    return SendMessageW(window(), message, wparam, lparam);
}

void ListWindowTest::add_row(const std::vector<std::u16string>& cells) {
    const std::int32_t row = rows().position(rows().append());
    rows().set_text(row, 0, cells.front());
    for (std::size_t column = 1; column < cells.size(); ++column)
        rows().add_sub_item(row, cells[column]);
}

void ListWindowTest::add_rows(int count) {
    for (int i = 0; i < count; ++i)
        add_row({win32::from_wide(std::to_wstring(i))});
}

void ListWindowTest::add_columns(const std::vector<std::u16string>& captions) {
    for (const auto& caption : captions)
        list->add_header(caption);
}

void ListWindowTest::show(int width, int height) {
    list->move({0, 0, win32::twips_x(width), win32::twips_y(height)});
    list->set_visible(true);
    UpdateWindow(window());
}

std::u16string ListWindowTest::text_by_message(int row, int column) const {
    std::array<wchar_t, 300> buffer{};
    LVITEMW item{};
    item.iSubItem = column;
    item.pszText = buffer.data();
    item.cchTextMax = static_cast<int>(buffer.size());
    const LRESULT length = send(LVM_GETITEMTEXTW, static_cast<WPARAM>(row), &item);
    return win32::from_wide({buffer.data(), static_cast<std::size_t>(length)});
}

int ListWindowTest::selected_by_message() const {
    return static_cast<int>(send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

int ListWindowTest::width_by_message(int column) const {
    return static_cast<int>(send(LVM_GETCOLUMNWIDTH, static_cast<WPARAM>(column)));
}

int ListWindowTest::measured(std::u16string_view text) const {
    const win32::TextMeasure measure(reinterpret_cast<HFONT>(send(WM_GETFONT)));
    return measure.width(text);
}

void ListWindowTest::press(UINT message, POINT point) const {
    send(message, MK_LBUTTON, MAKELPARAM(point.x, point.y));
}

POINT ListWindowTest::point_in(int row, int part) const {
    RECT rect{};
    rect.left = part;
    send(LVM_GETITEMRECT, static_cast<WPARAM>(row), &rect);
    return {rect.left + 2, (rect.top + rect.bottom) / 2};
}

std::int32_t error_raised_by(const std::function<void()>& action) {
    try {
        action();
        return 0;
    } catch (const HostError& error) {
        return error.number();
    }
}

} // namespace vellora::test
