// Version and About of the real library: the texts come from its version resource, the box is modal over the
// form.
#include "com/support/box_watcher.h"
#include "com/support/host_test.h"
#include "support/container/call_by_name.h"
#include "support/container/library.h"
#include "support/container/text.h"

namespace vellora::test {
namespace {

/// The library's title and numbers as its file tells them to anybody.
struct FileVersion {
    FileVersion() {
        const std::wstring path = Library::instance().path();
        DWORD ignored = 0;
        std::vector<char> block(GetFileVersionInfoSizeW(path.c_str(), &ignored));
        EXPECT_TRUE(GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(block.size()), block.data()));
        VS_FIXEDFILEINFO* numbers = nullptr;
        wchar_t* name = nullptr;
        UINT length = 0;
        EXPECT_TRUE(VerQueryValueW(block.data(), L"\\", reinterpret_cast<void**>(&numbers), &length));
        EXPECT_TRUE(VerQueryValueW(block.data(), L"\\StringFileInfo\\040904B0\\ProductName",
                                   reinterpret_cast<void**>(&name), &length));
        title = name;
        major = HIWORD(numbers->dwFileVersionMS);
        minor = LOWORD(numbers->dwFileVersionMS);
        revision = HIWORD(numbers->dwFileVersionLS);
    }
    std::wstring formatted(const wchar_t* format) const {
        wchar_t text[100];
        swprintf(text, 100, format, major, minor, revision);
        return text;
    }
    std::wstring title;
    int major = 0;
    int minor = 0;
    int revision = 0;
};

class AboutTest : public HostTest {
protected:
    HWND form() { return container_.form().window(); }
    const FileVersion file_;
};

using VersionTest = AboutTest;

TEST_F(VersionTest, IsThatOfTheLibrarysFileInBothWays) {
    Site& site = place();
    const std::wstring expected = file_.title + file_.formatted(L" v%d.%02d Build %04d");
    Bstr by_table;
    EXPECT_EQ(S_OK, vellora(site)->get_Version(by_table.out()));
    EXPECT_EQ(expected, by_table.text());
    EXPECT_EQ(expected, get_property(site.as<IDispatch>().Get(), L"version").text());
    EXPECT_EQ(0U, expected.find(L"VelloraCTL v"));
    EXPECT_EQ(E_POINTER, vellora(site)->get_Version(nullptr));
}

TEST_F(VersionTest, IsReadOnly) {
    Site& site = place();
    EXPECT_NE("none", failure_text([&] { put_property(site.as<IDispatch>().Get(), L"Version", L"x"); }));
}

TEST_F(AboutTest, ShowsTitleAndNumbersAndAnOkButton) {
    Site& site = place();
    std::wstring caption;
    std::vector<std::wstring> texts;
    DWORD button = 0;
    const BoxWatcher watcher([&](HWND box) {
        caption = text_of(box);
        button = LOWORD(SendMessageW(box, DM_GETDEFID, 0, 0));
        for (HWND child = GetWindow(box, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
            texts.push_back(text_of(child));
        press_ok(box);
    });
    EXPECT_EQ(S_OK, vellora(site)->About());
    EXPECT_EQ(1, watcher.boxes());
    EXPECT_EQ(L"About " + file_.title, caption);
    EXPECT_EQ((std::vector<std::wstring>{L"", file_.title, file_.formatted(L"Version %d.%d.%d"), L"OK"}), texts);
    EXPECT_EQ(static_cast<DWORD>(IDOK), button);
}

TEST_F(AboutTest, ByNameIsTheStockMethod) {
    Site& site = place();
    const BoxWatcher watcher(press_ok);
    EXPECT_EQ(DISPID_ABOUTBOX, dispatch_id(site.as<IDispatch>().Get(), L"About"));
    call_method(site.as<IDispatch>().Get(), L"About");
    EXPECT_EQ(1, watcher.boxes());
}

TEST_F(AboutTest, DisablesTheFormWhileItStandsAndActivatesItAgain) {
    Site& site = place();
    SetActiveWindow(form());
    bool enabled = true;
    HWND owner = nullptr;
    const BoxWatcher watcher([&](HWND box) {
        enabled = IsWindowEnabled(form());
        owner = GetWindow(box, GW_OWNER);
        press_ok(box);
    });
    EXPECT_EQ(S_OK, vellora(site)->About());
    EXPECT_FALSE(enabled);
    EXPECT_EQ(form(), owner);
    EXPECT_TRUE(IsWindowEnabled(form()));
    EXPECT_EQ(form(), GetActiveWindow());
}

TEST_F(AboutTest, OfAnMdiChildIsModalOverTheFrame) {
    Container mdi(bare_form(Form::Kind::mdi_child));
    Site& site = mdi.add(__uuidof(Vellora));
    HWND owner = nullptr;
    const BoxWatcher watcher([&](HWND box) {
        owner = GetWindow(box, GW_OWNER);
        press_ok(box);
    });
    EXPECT_EQ(S_OK, vellora(site)->About());
    EXPECT_EQ(mdi.form().frame(), owner);
    EXPECT_TRUE(IsWindowEnabled(mdi.form().frame()));
}

TEST_F(AboutTest, EscapeAndTheCloseBoxEndIt) {
    Site& site = place();
    for (const auto& leave :
         {+[](HWND box) { PostMessageW(GetDlgItem(box, IDOK), WM_KEYDOWN, VK_ESCAPE, 1); },
          +[](HWND box) { PostMessageW(GetDlgItem(box, IDOK), WM_KEYDOWN, VK_RETURN, 1); },
          +[](HWND box) { PostMessageW(box, WM_SYSCOMMAND, SC_CLOSE, 0); }}) {
        const BoxWatcher watcher(leave);
        EXPECT_EQ(S_OK, vellora(site)->About());
        EXPECT_EQ(1, watcher.boxes());
    }
}

TEST_F(AboutTest, WorksInADesignerAndWithoutAForm) {
    const BoxWatcher watcher(press_ok);
    EXPECT_EQ(S_OK, vellora(design())->About());
    ComPtr<_Vellora> bare;
    ASSERT_EQ(S_OK, Library::instance().create(__uuidof(Vellora)).As(&bare));
    EXPECT_EQ(S_OK, bare->About());
    container_.destroy_form();
    EXPECT_EQ(S_OK, bare->About());
    EXPECT_EQ(3, watcher.boxes());
}

TEST_F(AboutTest, ASecondCallStandsOverTheFirstBox) {
    Site& site = place();
    std::vector<HWND> boxes;
    HWND owner = nullptr;
    const BoxWatcher watcher([&](HWND box) {
        boxes.push_back(box);
        if (boxes.size() == 1) {
            EXPECT_EQ(S_OK, vellora(site)->About());
            EXPECT_TRUE(IsWindowEnabled(box));
            EXPECT_FALSE(IsWindowEnabled(form()));
        } else {
            owner = GetWindow(box, GW_OWNER);
        }
        press_ok(box);
    });
    EXPECT_EQ(S_OK, vellora(site)->About());
    ASSERT_EQ(2U, boxes.size());
    EXPECT_EQ(boxes[0], owner);
    EXPECT_TRUE(IsWindowEnabled(form()));
}

TEST_F(AboutTest, SurvivesTheEndOfItsControl) {
    Site& site = place();
    const BoxWatcher watcher([&](HWND box) {
        site.destroy();
        press_ok(box);
    });
    const ComPtr<_Vellora> control = vellora(site);
    EXPECT_EQ(S_OK, control->About());
    EXPECT_TRUE(IsWindowEnabled(form()));
}

TEST_F(AboutTest, SurvivesTheLastReferenceGoingInside) {
    Site& site = place();
    _Vellora* const control = vellora(site).Get(); // the site's reference is the only one
    const BoxWatcher watcher([&](HWND box) {
        site.destroy();
        press_ok(box);
    });
    EXPECT_EQ(S_OK, control->About());
    EXPECT_EQ(S_OK, Library::instance().can_unload());
}

TEST_F(AboutTest, EndsWithTheFormUnderIt) {
    Site& site = place();
    const ComPtr<_Vellora> control = vellora(site);
    const BoxWatcher watcher([&](HWND) { container_.destroy_form(); });
    EXPECT_EQ(S_OK, control->About());
    EXPECT_EQ(1, watcher.boxes());
}

TEST_F(AboutTest, LeavesTheEndOfTheProgramInTheQueue) {
    Site& site = place();
    const BoxWatcher watcher([](HWND) { PostQuitMessage(7); });
    EXPECT_EQ(S_OK, vellora(site)->About());
    MSG message{};
    EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(7U, message.wParam);
}

} // namespace
} // namespace vellora::test
