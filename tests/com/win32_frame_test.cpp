// The native frame with its lines and labels, and the picture of the closed field.
#include "com/support/peers_test.h"

#include "widgets/win32/check_button_peer.h"
#include "widgets/win32/face_painter.h"
#include "widgets/win32/label_peer.h"
#include "widgets/win32/line_peer.h"
#include "widgets/win32/text_box_peer.h"

#include <memory>

namespace vellora::test {
namespace {

using win32::FramePeer;
using win32::LabelPeer;
using win32::LinePeer;

constexpr COLORREF light_green = 0x00C0FFC0;

class LabelJournal final : public LabelListener {
public:
    explicit LabelJournal(Lines& lines) : lines_(lines) {}
    std::function<void()> on_moved;

    void label_pressed(std::int16_t button) override {
        lines_.push_back("pressed " + std::to_string(button));
    }
    void label_mouse_moved() override {
        if (on_moved) {
            on_moved();
        }
    }
    void label_released() override { lines_.push_back("released"); }

private:
    Lines& lines_;
};

class Win32FrameTest : public PeersTest {
protected:
    Win32FrameTest() {
        SetWindowPos(surface_.handle(), nullptr, 20, 20, 204, 104, SWP_NOZORDER);
        frame_->move({0, 0, 200 * x_, 100 * y_});
        frame_->set_visible(true);
    }

    const float x_ = surface_.twips_per_pixel_x();
    const float y_ = surface_.twips_per_pixel_y();
    std::unique_ptr<FramePeer> frame_ = std::make_unique<FramePeer>(surface_);
    LabelJournal journal_{lines_};
};

class Win32LabelTest : public Win32FrameTest {
protected:
    Win32LabelTest() {
        label_->set_font(u"Marlett", 12);
        label_->set_caption(u"o");
        label_->move(100 * x_, 50 * y_);
        label_->listen(&journal_);
        take_lines();
    }

    std::unique_ptr<LabelPeer> label_ = std::make_unique<LabelPeer>(*frame_);
    const LPARAM on_label_ = MAKELPARAM(102, 52);
    const LPARAM off_label_ = MAKELPARAM(10, 10);
};

TEST_F(Win32FrameTest, KeepsItsTagAndItsColor) {
    frame_->set_tag(u"123");
    EXPECT_EQ(frame_->tag(), u"123");
    frame_->set_back_color(light_green);
    EXPECT_EQ(pixel(window_of(*frame_), 50, 50), light_green);
    EXPECT_EQ(raised([&] { frame_->set_back_color(0x03000000); }), error_number::invalid_property_value);
    EXPECT_EQ(frame_->back_color(), light_green);
}

TEST_F(Win32FrameTest, StaysBehindWhatSharesItsParent) {
    const HWND sibling = CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS, 0, 0, 50,
                                         50, surface_.handle(), nullptr, nullptr, nullptr);
    SetWindowPos(window_of(*frame_), HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    EXPECT_EQ(GetWindow(sibling, GW_HWNDLAST), window_of(*frame_));
    SetParent(window_of(*frame_), form_.window());
    SetParent(window_of(*frame_), surface_.handle());
    EXPECT_EQ(GetWindow(sibling, GW_HWNDLAST), window_of(*frame_));
}

TEST_F(Win32FrameTest, AClickActivatesNothing) {
    EXPECT_EQ(SendMessageW(window_of(*frame_), WM_MOUSEACTIVATE, 0, 0), MA_NOACTIVATE);
}

TEST_F(Win32FrameTest, PaintsItsLinesOnePixelWide) {
    LinePeer line(*frame_);
    line.set_ends({20 * x_, 0, 20 * x_, 40 * y_});
    const COLORREF dark = GetSysColor(COLOR_3DDKSHADOW);
    const COLORREF face = GetSysColor(COLOR_BTNFACE);
    EXPECT_EQ(pixel(window_of(*frame_), 19, 20), face);
    EXPECT_EQ(pixel(window_of(*frame_), 20, 20), dark);
    EXPECT_EQ(pixel(window_of(*frame_), 21, 20), face);
    line.set_ends({30 * x_, 0, 30 * x_, 40 * y_});
    EXPECT_EQ(pixel(window_of(*frame_), 20, 20), face);
    EXPECT_EQ(line.ends().x1, 30 * x_);
}

TEST_F(Win32LabelTest, IsAsLargeAsItsCaption) {
    EXPECT_GT(label_->width(), 8 * x_);
    EXPECT_GT(label_->height(), 8 * y_);
    const float one = label_->width();
    label_->set_caption(u"oo");
    EXPECT_EQ(label_->width(), 2 * one);
}

TEST_F(Win32LabelTest, HearsOfTheMouseOverIt) {
    int moves = 0;
    journal_.on_moved = [&] { ++moves; };
    SendMessageW(window_of(*frame_), WM_MOUSEMOVE, 0, on_label_);
    EXPECT_EQ(moves, 1);
    SendMessageW(window_of(*frame_), WM_MOUSEMOVE, 0, off_label_);
    EXPECT_EQ(moves, 1);
}

TEST_F(Win32LabelTest, APressKeepsTheMouseUntilItsRelease) {
    int moves = 0;
    SendMessageW(window_of(*frame_), WM_LBUTTONDOWN, MK_LBUTTON, on_label_);
    journal_.on_moved = [&] { ++moves; };
    SendMessageW(window_of(*frame_), WM_MOUSEMOVE, MK_LBUTTON, off_label_);
    EXPECT_EQ(GetCapture(), window_of(*frame_));
    SendMessageW(window_of(*frame_), WM_LBUTTONUP, 0, off_label_);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(moves, 1);
    EXPECT_EQ(take_lines(), (Lines{"pressed 1", "released"}));
}

TEST_F(Win32LabelTest, LosingTheMouseIsARelease) {
    SendMessageW(window_of(*frame_), WM_RBUTTONDOWN, MK_RBUTTON, on_label_);
    ReleaseCapture();
    EXPECT_EQ(take_lines(), (Lines{"pressed 2", "released"}));
    SendMessageW(window_of(*frame_), WM_LBUTTONDOWN, MK_LBUTTON, off_label_);
    EXPECT_EQ(take_lines(), Lines{});
}

TEST_F(Win32LabelTest, AFrameThatIsHiddenLetsTheMouseGo) {
    SendMessageW(window_of(*frame_), WM_LBUTTONDOWN, MK_LBUTTON, on_label_);
    frame_->set_visible(false);
    EXPECT_EQ(GetCapture(), nullptr);
    EXPECT_EQ(take_lines(), (Lines{"pressed 1", "released"}));
}

TEST_F(Win32LabelTest, TheLaterOfTwoLabelsGetsTheMouse) {
    Lines later_lines;
    LabelJournal later_journal(later_lines);
    LabelPeer later(*frame_);
    later.set_caption(u"later");
    later.move(100 * x_, 50 * y_);
    later.listen(&later_journal);
    SendMessageW(window_of(*frame_), WM_LBUTTONDOWN, MK_LBUTTON, on_label_);
    EXPECT_EQ(later_lines, Lines{"pressed 1"});
    EXPECT_EQ(take_lines(), Lines{});
}

TEST_F(Win32LabelTest, ShowsItsPointerAtOnce) {
    label_->set_pointer(mouse_pointer::standard);
    SendMessageW(window_of(*frame_), WM_MOUSEMOVE, 0, on_label_);
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_ARROW));
    journal_.on_moved = [&] { label_->set_pointer(mouse_pointer::size_northwest_southeast); };
    SendMessageW(window_of(*frame_), WM_MOUSEMOVE, 0, on_label_);
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_SIZENWSE));
    label_->set_pointer(mouse_pointer::size_north_south);
    SendMessageW(window_of(*frame_), WM_MOUSEMOVE, 0, off_label_);
    journal_.on_moved = nullptr;
    SendMessageW(window_of(*frame_), WM_MOUSEMOVE, 0, on_label_);
    EXPECT_EQ(GetCursor(), LoadCursorW(nullptr, IDC_SIZENS));
}

TEST_F(Win32LabelTest, MayEndWithItsFrameInTheMiddleOfAMove) {
    const HWND window = window_of(*frame_);
    journal_.on_moved = [&] {
        label_.reset();
        frame_.reset();
    };
    SendMessageW(window, WM_MOUSEMOVE, 0, on_label_);
    EXPECT_FALSE(IsWindow(window));
}

class Win32FaceTest : public PeersTest {
protected:
    Win32FaceTest() {
        surface_.set_font(font_);
        box_.set_font(font_);
        box_.set_text(u"Vellora yY");
        box_.move({x_, y_, 176 * x_, 22 * y_});
        box_.set_visible(true);
        button_.move({178 * x_, 0, 16 * x_, 20 * y_});
        button_.set_visible(true);
    }

    win32::FieldFace face() const {
        win32::FieldFace face;
        face.size = {200, 24};
        face.back_color = surface_.back_color();
        face.text_field = box_.face();
        face.button_place = {178, 0, 194, 20};
        face.button = button_.face();
        return face;
    }

    /// How many pixels of the picture differ from the window on the screen.
    int differences();

    const float x_ = surface_.twips_per_pixel_x();
    const float y_ = surface_.twips_per_pixel_y();
    // The platform's edit field and its text functions space the letters of this font alike.
    std::shared_ptr<win32::OleFont> font_ = win32::OleFont::create(u"MS Sans Serif", 8.25F);
    win32::TextBoxPeer box_{surface_, win32::TextAlignment::left};
    win32::CheckButtonPeer button_{surface_, 0};
};

int Win32FaceTest::differences() {
    surface_.refresh();
    pump();
    const HDC screen = GetWindowDC(surface_.handle());
    const win32::UniqueMemoryDc picture(CreateCompatibleDC(screen));
    const win32::UniqueBitmap bitmap(CreateCompatibleBitmap(screen, 240, 60));
    const HGDIOBJ old_bitmap = SelectObject(picture.get(), bitmap.get());
    win32::paint_field(picture.get(), {30, 20, 230, 44}, face());
    int differing = 0;
    for (int y = 0; y < 24; ++y) {
        for (int x = 0; x < 200; ++x) {
            differing += GetPixel(screen, x, y) != GetPixel(picture.get(), 30 + x, 20 + y) ? 1 : 0;
        }
    }
    SelectObject(picture.get(), old_bitmap);
    ReleaseDC(surface_.handle(), screen);
    return differing;
}

TEST_F(Win32FaceTest, ThePictureIsWhatTheWindowShows) {
    EXPECT_EQ(differences(), 0);
}

TEST_F(Win32FaceTest, ThePictureFollowsColorsAndState) {
    surface_.set_back_color(light_green);
    box_.set_back_color(light_green);
    box_.set_fore_color(0x00FF0000);
    button_.set_back_color(0x0000FFFF);
    button_.set_value(1);
    EXPECT_EQ(differences(), 0);
}

TEST_F(Win32FaceTest, ThePictureFollowsMarginsAndBeingDisabled) {
    SendMessageW(window_of(box_), EM_SETMARGINS, EC_LEFTMARGIN, MAKELPARAM(11, 0));
    box_.set_enabled(false);
    button_.set_enabled(false);
    EXPECT_EQ(differences(), 0);
}

TEST_F(Win32FaceTest, AFieldWithoutSizePaintsNothing) {
    win32::FieldFace empty;
    const win32::WindowDc dc(form_.window());
    const COLORREF before = GetPixel(dc.get(), 5, 5);
    win32::paint_field(dc.get(), {0, 0, 20, 20}, empty);
    EXPECT_EQ(GetPixel(dc.get(), 5, 5), before);
}

} // namespace
} // namespace vellora::test
