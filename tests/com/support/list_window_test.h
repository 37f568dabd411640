// A list on a real window, in a parent that hands notifications on as the control's surface does.
#pragma once

#include "widgets/win32/list_view_peer.h"
#include "widgets/win32/locale_text_compare.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace vellora::test {

/// A top-level window that routes notifications, and counts those of one code.
class RoutingWindow {
public:
    RoutingWindow();
    ~RoutingWindow();
    RoutingWindow(const RoutingWindow&) = delete;
    RoutingWindow& operator=(const RoutingWindow&) = delete;

    HWND handle() const { return handle_; }
    int notifications(UINT code) const;
    void destroy();

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) noexcept;

    HWND handle_ = nullptr;
    std::vector<UINT> codes_;
};

/// Counts memory faults in this process while it stands. The window system swallows those that happen inside
/// a window procedure, so that a test would pass in spite of them.
class FaultCounter {
public:
    FaultCounter();
    ~FaultCounter();
    FaultCounter(const FaultCounter&) = delete;
    FaultCounter& operator=(const FaultCounter&) = delete;

    int count() const;

private:
    void* handler_;
};

/// Writes down what the list tells, one word each, and does what the test wants in between.
class ListRecorder final : public ListViewListener {
public:
    std::vector<std::string> heard;
    std::function<void()> meanwhile = [] {};
    std::function<void(std::int16_t&)> change_key = [](std::int16_t&) {};

    void list_clicked() override { note("click"); }
    void list_column_clicked(std::int32_t column) override { note("column " + std::to_string(column)); }
    void list_item_checked(std::int32_t row) override { note("check " + std::to_string(row)); }
    void list_key_down(std::int16_t& key_code, std::int16_t shift) override;
    void list_key_press(std::int16_t& key_ascii) override;

private:
    void note(std::string what);
};

class ListWindowTest : public ::testing::Test {
protected:
    ListWindowTest();
    ~ListWindowTest() override;

    RoutingWindow parent;
    ListRecorder recorder;
    std::unique_ptr<win32::ListViewPeer> list;

    /// Another list, empty, in the place of the present one.
    void renew_list();
    ListRows& rows() { return list->rows(); }
    HWND window() const { return reinterpret_cast<HWND>(list->window()); }
    HWND header() const;
    LRESULT send(UINT message, WPARAM wparam = 0, LPARAM lparam = 0) const;
    template <typename Structure>
    LRESULT send(UINT message, WPARAM wparam, Structure* structure) const {
        return send(message, wparam, reinterpret_cast<LPARAM>(structure));
    }

    void add_row(const std::vector<std::u16string>& cells);
    void add_rows(int count);
    void add_columns(const std::vector<std::u16string>& captions);
    /// Visible, in pixels.
    void show(int width, int height);

    std::u16string text_by_message(int row, int column) const;
    int selected_by_message() const;
    int width_by_message(int column) const;
    int measured(std::u16string_view text) const;
    void press(UINT message, POINT point) const;
    POINT point_in(int row, int part) const;

private:
    FaultCounter faults_;
    class FocusIgnored final : public win32::FocusListener {
        void focus_entered() override {}
        void focus_left() override {}
    };
    FocusIgnored ignored_;
    win32::FocusTracker tracker_{ignored_};
    win32::LocaleTextCompare compare_;
};

/// The number of the HostError that the action raises; 0 for none.
std::int32_t error_raised_by(const std::function<void()>& action);

} // namespace vellora::test
