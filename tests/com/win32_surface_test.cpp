// The control's own window, the focus that comes and goes, and the windows around it.
#include "com/support/peers_test.h"

#include "widgets/win32/form_watch_peer.h"
#include "widgets/win32/text_box_peer.h"
#include "widgets/win32/user32_peer.h"
#include "widgets/win32/window_hook_peer.h"

#include <commctrl.h>

#include <memory>

namespace vellora::test {
namespace {

using win32::OleFont;

constexpr COLORREF light_green = 0x00C0FFC0;
constexpr PixelRect popup_place{120, 300, 220, 380};

HWND as_window(WindowHandle window) {
    return reinterpret_cast<HWND>(window);
}
WindowHandle as_handle(HWND window) {
    return reinterpret_cast<WindowHandle>(window);
}

class Win32SurfaceTest : public PeersTest {
protected:
    Win32SurfaceTest() {
        box_.move({15, 15, 2400, 240});
        box_.set_visible(true);
        surface_.listen(&journal_);
        surface_.set_host(&host_journal_);
    }
    ~Win32SurfaceTest() override {
        surface_.listen(nullptr);
        surface_.set_host(nullptr);
    }

    SurfaceJournal journal_{lines_};
    HostJournal host_journal_{lines_};
    win32::TextBoxPeer box_{surface_, win32::TextAlignment::left};
    win32::User32Peer user32_{surface_.focus_tracker(), nullptr};
};

TEST_F(Win32SurfaceTest, CountsItsSunkenBorderToItsSize) {
    const float pixel_size = surface_.twips_per_pixel_x();
    EXPECT_EQ(surface_.width(), 200 * pixel_size);
    EXPECT_EQ(surface_.height(), 24 * pixel_size);
    EXPECT_EQ(surface_.client_width(), 196 * pixel_size);
}

TEST_F(Win32SurfaceTest, AsksItsHostForAHeightAndTakesItWithoutOne) {
    surface_.set_height(30 * surface_.twips_per_pixel_y());
    EXPECT_EQ(take_lines(), Lines{"host: height 30"});
    surface_.set_host(nullptr);
    surface_.set_height(30 * surface_.twips_per_pixel_y());
    EXPECT_EQ(take_lines(), Lines{"resized"});
    EXPECT_EQ(surface_.height(), 30 * surface_.twips_per_pixel_y());
}

TEST_F(Win32SurfaceTest, DoesNotAskForTheHeightItHas) {
    surface_.set_height(24 * surface_.twips_per_pixel_y());
    EXPECT_EQ(take_lines(), Lines{});
}

TEST_F(Win32SurfaceTest, MeasuresTextInItsFontWhateverTheFontBecomes) {
    const auto font = OleFont::create(u"Tahoma", 8);
    surface_.set_font(font);
    const float small = surface_.text_height(u"yY");
    CY size{};
    size.int64 = 200000;
    font->font()->put_Size(size);
    EXPECT_GT(surface_.text_height(u"yY"), 2 * small);
}

TEST_F(Win32SurfaceTest, TellsWhenItsFontObjectGetsAnotherLook) {
    const auto font = OleFont::create(u"Tahoma", 8);
    surface_.set_font(font);
    surface_.set_font(OleFont::create(u"Tahoma", 9));
    font->font()->put_Italic(TRUE);
    EXPECT_EQ(take_lines(), Lines{});
    surface_.set_font(font);
    font->font()->put_Underline(TRUE);
    EXPECT_EQ(take_lines(), Lines{"font changed"});
    font->font()->put_Underline(TRUE);
    EXPECT_EQ(take_lines(), Lines{});
}

TEST_F(Win32SurfaceTest, PaintsItsBackColorAndRefusesWhatIsNone) {
    surface_.set_back_color(light_green);
    EXPECT_EQ(pixel(surface_.handle(), 190, 10), light_green);
    EXPECT_EQ(raised([&] { surface_.set_back_color(0x03000000); }), error_number::invalid_property_value);
    EXPECT_EQ(surface_.back_color(), light_green);
}

TEST_F(Win32SurfaceTest, PassesTheFocusOnToItsTextBox) {
    SetFocus(surface_.handle());
    EXPECT_EQ(GetFocus(), window_of(box_));
    EXPECT_EQ(take_lines(), Lines{"host: focus entered"});
    focus_elsewhere();
    EXPECT_EQ(take_lines(), (Lines{"focus left", "host: focus left"}));
}

TEST_F(Win32SurfaceTest, KeepsTheFocusWhenNothingInItCanTakeIt) {
    box_.set_visible(false);
    SetFocus(surface_.handle());
    EXPECT_EQ(GetFocus(), surface_.handle());
    focus_elsewhere();
    EXPECT_EQ(take_lines(), (Lines{"host: focus entered", "lost focus", "focus left", "host: focus left"}));
}

TEST_F(Win32SurfaceTest, ItsFloatingWindowIsPartOfIt) {
    box_.focus();
    take_lines();
    const WindowHandle popup = user32_.create_popup(popup_place);
    user32_.show_popup(popup);
    box_.focus();
    user32_.destroy_window(popup);
    EXPECT_EQ(take_lines(), Lines{});
    focus_elsewhere();
    EXPECT_EQ(take_lines(), (Lines{"focus left", "host: focus left"}));
}

TEST_F(Win32SurfaceTest, NoticesThatTheFocusWasElsewhereWhenTheFloatingWindowEnds) {
    box_.focus();
    const WindowHandle popup = user32_.create_popup(popup_place);
    user32_.show_popup(popup);
    take_lines();
    focus_elsewhere();
    user32_.destroy_window(popup);
    EXPECT_EQ(take_lines(), (Lines{"focus left", "host: focus left"}));
}

TEST_F(Win32SurfaceTest, SaysThatItIsDestroyed) {
    DestroyWindow(surface_.handle());
    // A visible window is hidden on its way.
    EXPECT_EQ(take_lines(), (Lines{"hidden", "destroyed"}));
    EXPECT_EQ(surface_.window(), 0);
    EXPECT_EQ(surface_.width(), 0.0F);
}

TEST_F(Win32SurfaceTest, TheFloatingWindowIsAnUnownedToolWindowOfTheStaticClass) {
    const HWND popup = as_window(user32_.create_popup(popup_place));
    EXPECT_FALSE(IsWindowVisible(popup));
    user32_.show_popup(as_handle(popup));
    wchar_t name[16];
    GetClassNameW(popup, name, 16);
    EXPECT_STREQ(name, L"Static");
    EXPECT_EQ(user32_.style(as_handle(popup)) & 0x90000000, 0x90000000U);
    EXPECT_EQ(GetWindowLongW(popup, GWL_EXSTYLE) & WS_EX_TOOLWINDOW, WS_EX_TOOLWINDOW);
    EXPECT_EQ(GetParent(popup), nullptr);
    EXPECT_EQ(reinterpret_cast<HINSTANCE>(GetWindowLongPtrW(popup, GWLP_HINSTANCE)),
              GetModuleHandleW(nullptr));
    const auto rect = user32_.window_rect(as_handle(popup));
    ASSERT_TRUE(rect.has_value());
    EXPECT_EQ(rect->left, popup_place.left);
    EXPECT_EQ(rect->bottom, popup_place.bottom);
    user32_.destroy_window(as_handle(popup));
    EXPECT_FALSE(user32_.window_rect(as_handle(popup)).has_value());
}

struct CloseJournal final : win32::FloatingWindowListener {
    int requests = 0;
    int departures = 0;
    void close_requested() override { ++requests; }
    void floating_window_left() override { ++departures; }
};

TEST_F(Win32SurfaceTest, ClosingTheFloatingWindowMeansTheForm) {
    CloseJournal close;
    win32::User32Peer user32(surface_.focus_tracker(), &close);
    const WindowHandle popup = user32.create_popup(popup_place);
    int form_closes = 0;
    form_.watch([&](UINT message, WPARAM wparam, LPARAM) {
        form_closes += message == WM_SYSCOMMAND && wparam == SC_CLOSE ? 1 : 0;
    });
    SendMessageW(as_window(popup), WM_CLOSE, 0, 0);
    EXPECT_TRUE(IsWindow(as_window(popup)));
    EXPECT_EQ(close.requests, 1);
    pump();
    EXPECT_EQ(form_closes, 1);
    user32.destroy_window(popup);
}

TEST_F(Win32SurfaceTest, HeaderItemsAreFoundByScreenPoints) {
    const HWND header = CreateWindowExW(0, WC_HEADERW, L"", WS_CHILD | WS_VISIBLE, 10, 100, 200, 20,
                                        form_.window(), nullptr, nullptr, nullptr);
    HDITEMW item{};
    item.mask = HDI_WIDTH;
    item.cxy = 50;
    SendMessageW(header, HDM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    SendMessageW(header, HDM_INSERTITEMW, 1, reinterpret_cast<LPARAM>(&item));
    POINT second{75, 10};
    ClientToScreen(header, &second);
    EXPECT_EQ(user32_.header_item_at(as_handle(header), {second.x, second.y}), 1);
    EXPECT_EQ(user32_.header_item_at(as_handle(header), {second.x + 60, second.y}), -1);
}

struct Receiver final : HookedMessages {
    win32::WindowHookPeer hook;
    WindowProcedure previous = 0;
    Lines lines;

    std::intptr_t message_passed(WindowHandle window, std::uint32_t message, std::uintptr_t wparam,
                                 std::intptr_t lparam) override {
        if (message == WM_NOTIFY) {
            const Notification notice = hook.notification(lparam);
            lines.push_back(std::to_string(notice.id) + ' ' + std::to_string(notice.code));
            throw HostError(error_number::overflow);
        }
        if (message == WM_USER) {
            return 77;
        }
        return hook.call_procedure(previous, window, message, wparam, lparam);
    }
};

TEST_F(Win32SurfaceTest, AHookedWindowAsksTheReceiverFirst) {
    Receiver receiver;
    receiver.hook.receive(&receiver);
    const WindowHandle window = as_handle(other_);
    const LONG_PTR before = GetWindowLongPtrW(other_, GWLP_WNDPROC);
    receiver.previous = receiver.hook.replace_procedure(window);
    EXPECT_EQ(receiver.previous, before);
    EXPECT_EQ(SendMessageW(other_, WM_USER, 0, 0), 77);
    EXPECT_EQ(GetWindowTextLengthW(other_), 5);
    NMHDR notice{other_, 12, static_cast<UINT>(-306)};
    EXPECT_EQ(SendMessageW(other_, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&notice)), 0);
    EXPECT_EQ(receiver.lines, Lines{"12 -306"});
    receiver.hook.restore_procedure(window, receiver.previous);
    EXPECT_EQ(GetWindowLongPtrW(other_, GWLP_WNDPROC), before);
    EXPECT_EQ(SendMessageW(other_, WM_USER, 0, 0), 0);
    receiver.hook.receive(nullptr);
    EXPECT_EQ(receiver.hook.replace_procedure(0), 0);
}

struct WatchJournal final : FormWatchListener {
    int disturbances = 0;
    std::function<void()> reaction;
    void form_disturbed() override {
        ++disturbances;
        if (reaction) {
            reaction();
        }
    }
    bool disturbed() { return std::exchange(disturbances, 0) > 0; }
};

class Win32FormWatchTest : public PeersTest {
protected:
    Win32FormWatchTest() {
        watch_->listen(&journal_);
        watch_->watch(as_handle(form_.window()));
    }

    WatchJournal journal_;
    std::unique_ptr<win32::FormWatchPeer> watch_ = std::make_unique<win32::FormWatchPeer>();
};

TEST_F(Win32FormWatchTest, HearsOfWhatMovesTheFormAway) {
    SetWindowPos(form_.window(), nullptr, 110, 110, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_TRUE(journal_.disturbed());
    SetWindowPos(form_.window(), nullptr, 0, 0, 500, 300, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    EXPECT_TRUE(journal_.disturbed());
    EnableWindow(form_.window(), FALSE);
    EXPECT_TRUE(journal_.disturbed());
    ShowWindow(form_.window(), SW_HIDE);
    EXPECT_TRUE(journal_.disturbed());
    form_.destroy();
    EXPECT_TRUE(journal_.disturbed());
}

TEST_F(Win32FormWatchTest, HearsNothingOfOtherThingsNorAfterItsEnd) {
    EnableWindow(form_.window(), TRUE);
    SetWindowTextW(form_.window(), L"renamed");
    InvalidateRect(form_.window(), nullptr, TRUE);
    UpdateWindow(form_.window());
    EXPECT_FALSE(journal_.disturbed());
    watch_->stop();
    MoveWindow(form_.window(), 130, 130, 400, 300, TRUE);
    EXPECT_FALSE(journal_.disturbed());
}

TEST_F(Win32FormWatchTest, MayBeEndedByItsListener) {
    journal_.reaction = [&] { watch_.reset(); };
    MoveWindow(form_.window(), 130, 130, 400, 300, TRUE);
    EXPECT_EQ(watch_, nullptr);
    EXPECT_EQ(journal_.disturbances, 1);
}

TEST(Win32FormWatchInMdiTest, WatchesTheFrameAroundAChildForm) {
    Form form({Form::Kind::mdi_child});
    WatchJournal journal;
    win32::FormWatchPeer watch;
    watch.listen(&journal);
    watch.watch(as_handle(form.window()));
    MoveWindow(form.frame(), 140, 140, 500, 400, TRUE);
    EXPECT_TRUE(journal.disturbed());
}

} // namespace
} // namespace vellora::test
