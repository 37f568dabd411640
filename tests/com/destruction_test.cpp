// A host may end the control, or its whole form, inside any event.
#include "com/support/open_list_test.h"
#include "support/container/text.h"

#include <map>

namespace vellora::test {
namespace {

enum class End { control, form, control_then_form, reference_only };

struct Case {
    const char* event;
    const char* way;
    End end;
};

class EndInEvent : public OpenListTest, public testing::WithParamInterface<Case> {
protected:
    void end() {
        const End how = GetParam().end;
        if (how == End::control || how == End::control_then_form)
            site().destroy();
        if (how == End::form || how == End::control_then_form)
            container_.destroy_form();
        if (how == End::reference_only) {
            site().stop_listening();
            site().take_site_away();
        }
        ended_ = true;
    }
    // What a user or program does to make an event come.
    void provoke(const std::string& event) {
        static const std::map<std::string, void (EndInEvent::*)()> ways = {
            {"Change", &EndInEvent::write_text},  {"Click", &EndInEvent::select},
            {"DropDown", &EndInEvent::drop},      {"KeyDown", &EndInEvent::type},
            {"KeyPress", &EndInEvent::type},      {"KeyUp", &EndInEvent::type},
            {"MouseDown", &EndInEvent::press},    {"MouseMove", &EndInEvent::move},
            {"MouseUp", &EndInEvent::press},      {"DblClick", &EndInEvent::press_twice},
            {"ItemCheck", &EndInEvent::check},    {"ColumnClick", &EndInEvent::click_header},
            {"ListClick", &EndInEvent::click_row}};
        (this->*ways.at(event))();
    }

    bool ended_ = false;

private:
    void write_text() { c().put_Text(Bstr(L"new").get()); }
    void select() { c().put_ListIndex(1); }
    void drop() {
        c().ShowList();
        container_.pump();
        if (!ended_)
            c().HideList();
    }
    void type() {
        HWND field = text_field(control());
        SetFocus(field);
        PostMessageW(field, WM_KEYDOWN, 'A', 1);
        PostMessageW(field, WM_CHAR, 'a', 1);
        PostMessageW(field, WM_KEYUP, 'A', static_cast<LPARAM>(0xC0000001U));
        container_.pump();
    }
    void mouse(std::initializer_list<UINT> messages) {
        HWND field = text_field(control());
        for (UINT message : messages)
            PostMessageW(field, message, 0, MAKELPARAM(5, 5));
        container_.pump();
    }
    void press() { mouse({WM_LBUTTONDOWN, WM_LBUTTONUP}); }
    void move() { mouse({WM_MOUSEMOVE}); }
    void press_twice() { mouse({WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_LBUTTONUP}); }
    void check() { c().put_Checked(1, VARIANT_TRUE); }
    void click_header() {
        open();
        HWND header = header_of(list());
        click(header, header_rect(list(), 0));
        click(header, header_rect(list(), 0));
    }
    void click_row() {
        open();
        click(list(), row_rect(list(), 1));
    }
};

TEST_P(EndInEvent, LeavesNothingBehind) {
    fill(3);
    const std::string event = GetParam().event;
    site().events().on_every([this](const std::string& name, EventArguments&) {
        if (!ended_ && name == GetParam().event)
            end();
    });
    ComPtr<_Vellora> held = &c();
    provoke(GetParam().way);
    container_.pump();
    EXPECT_TRUE(ended_) << event << " never came";
    EXPECT_TRUE(floating_windows().empty());
    held.Reset();

    Container later(bare_form());
    Site& fresh = later.add(__uuidof(Vellora));
    vellora(fresh)->ShowList();
    later.pump();
    EXPECT_EQ(1U, floating_windows().size());
    EXPECT_TRUE(same_lines({"DropDown(I4 0)"}, fresh.events().take()));
    vellora(fresh)->HideList();
}

std::vector<Case> all_cases() {
    constexpr const char* events[][2] = {{"Change", "Change"},       {"Click", "Click"},
                                         {"Click", "ListClick"},     {"DropDown", "DropDown"},
                                         {"DropDown", "ListClick"},  {"KeyDown", "KeyDown"},
                                         {"KeyPress", "KeyPress"},   {"KeyUp", "KeyUp"},
                                         {"MouseDown", "MouseDown"}, {"MouseMove", "MouseMove"},
                                         {"MouseUp", "MouseUp"},     {"DblClick", "DblClick"},
                                         {"ItemCheck", "ItemCheck"}, {"ColumnClick", "ColumnClick"}};
    std::vector<Case> cases;
    for (const auto& event : events)
        for (End end : {End::control, End::form, End::control_then_form, End::reference_only})
            cases.push_back({event[0], event[1], end});
    return cases;
}

std::string case_name(const testing::TestParamInfo<Case>& info) {
    constexpr const char* ends[] = {"Control", "Form", "ControlThenForm", "Site"};
    return std::string(info.param.event) + "By" + info.param.way + "Ends" +
           ends[static_cast<int>(info.param.end)];
}

INSTANTIATE_TEST_SUITE_P(Event, EndInEvent, testing::ValuesIn(all_cases()), case_name);

class EndInClosing : public OpenListTest {};

TEST_F(EndInClosing, TheFormGoesAsItsListCloses) {
    fill(3);
    open();
    site().events().on("DropDown", [&](EventArguments&) { container_.destroy_form(); });
    c().HideList();
    EXPECT_TRUE(floating_windows().empty());
}

TEST_F(EndInClosing, TheFormGoesWhileItsListIsOpen) {
    fill(3);
    open();
    container_.destroy_form();
    EXPECT_TRUE(floating_windows().empty());
    Container later(bare_form());
    Site& fresh = later.add(__uuidof(Vellora));
    vellora(fresh)->ShowList();
    later.pump();
    EXPECT_EQ(1U, floating_windows().size());
    vellora(fresh)->HideList();
}

TEST_F(EndInClosing, TheControlIsDeactivatedWhileItsListIsOpen) {
    fill(3);
    open();
    EXPECT_EQ(S_OK, site().deactivate());
    EXPECT_TRUE(floating_windows().empty());
    EXPECT_EQ(S_OK, site().activate());
    open();
    EXPECT_EQ(1U, floating_windows().size());
    c().HideList();
}

} // namespace
} // namespace vellora::test
