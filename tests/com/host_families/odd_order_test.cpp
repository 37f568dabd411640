// Hosts that end a control, or its place, in an order of their own.
#include "com/host_families/host_script.h"

namespace vellora::test {
namespace {

class OddOrder : public testing::Test {
protected:
    OddOrder() {
        host_.run({"Create", "SetClientSite", "InitNew stream", "Advise", "SetExtent 200 24", "AddItem one",
                   "DoVerb InPlaceActivate", "DoVerb UIActivate", "ShowList"});
    }
    void TearDown() override { EXPECT_TRUE(same_lines({}, host_.left())); }

    HostScript host_;
};

TEST_F(OddOrder, DeactivatesWithoutUiDeactivation) {
    EXPECT_SCRIPT(host_, R"(
InPlaceDeactivate = S_OK
    IOleControlSite::OnFocus(False)
    IOleControlSite::GetExtendedControl
    Extender(Parent)
    Form(hWnd)
    IOleControlSite::GetExtendedControl
    Extender(Parent)
    Form(hWnd)
    IOleControlSite::OnControlInfoChanged
    Event(DropDown)
    Ambient(UIDead)
    IOleControlSite::OnFocus(True)
    IOleInPlaceFrame::SetActiveObject(Nothing)
    IOleInPlaceSite::OnUIDeactivate
    IOleControlSite::OnFocus(False)
    IOleInPlaceSite::OnInPlaceDeactivate
UIDeactivate = S_OK
Where = nowhere
Unadvise = done
SetClientSite Nothing = S_OK
Release = gone
)");
}

TEST_F(OddOrder, ClosesTwice) {
    EXPECT_SCRIPT(host_, R"(
Close = S_OK
    IOleControlSite::OnFocus(False)
    IOleControlSite::GetExtendedControl
    Extender(Parent)
    Form(hWnd)
    IOleControlSite::GetExtendedControl
    Extender(Parent)
    Form(hWnd)
    IOleControlSite::OnControlInfoChanged
    Event(DropDown)
    Ambient(UIDead)
    IOleControlSite::OnFocus(True)
    IOleInPlaceFrame::SetActiveObject(Nothing)
    IOleInPlaceSite::OnUIDeactivate
    IOleControlSite::OnFocus(False)
    IOleInPlaceSite::OnInPlaceDeactivate
Close = S_OK
DoVerb UIActivate = S_OK
    IOleInPlaceSite::CanInPlaceActivate
    IOleInPlaceSite::OnInPlaceActivate
    IOleInPlaceSite::GetWindow
    IOleInPlaceSite::GetWindowContext
    IOleClientSite::ShowObject
    Ambient(UIDead)
    IOleInPlaceSite::OnUIActivate
    IOleInPlaceFrame::SetActiveObject(object)
    IOleInPlaceFrame::SetBorderSpace
    Ambient(UIDead)
    IOleControlSite::OnFocus(True)
Where = 20 20 220 41
Close = S_OK
    IOleInPlaceFrame::SetActiveObject(Nothing)
    IOleInPlaceSite::OnUIDeactivate
    IOleControlSite::OnFocus(False)
    IOleInPlaceSite::OnInPlaceDeactivate
Unadvise = done
SetClientSite Nothing = S_OK
Release = gone
)");
}

TEST_F(OddOrder, TakesTheSiteAwayFromAnActiveControl) {
    EXPECT_SCRIPT(host_, R"(
SetClientSite Nothing = S_OK
    IOleControlSite::OnFocus(False)
    IOleControlSite::GetExtendedControl
    Extender(Parent)
    Form(hWnd)
    IOleControlSite::GetExtendedControl
    Extender(Parent)
    Form(hWnd)
    IOleControlSite::OnControlInfoChanged
    Event(DropDown)
    Ambient(UIDead)
    IOleControlSite::OnFocus(True)
    IOleInPlaceFrame::SetActiveObject(Nothing)
    IOleInPlaceSite::OnUIDeactivate
    IOleControlSite::OnFocus(False)
    IOleInPlaceSite::OnInPlaceDeactivate
UIDeactivate = S_OK
InPlaceDeactivate = S_OK
Close = S_OK
Unadvise = done
Release = gone
)");
}

TEST_F(OddOrder, LetsGoOfAnActiveControl) {
    EXPECT_SCRIPT(host_, R"(
Release = gone
    IOleControlSite::OnFocus(False)
    IOleControlSite::GetExtendedControl
    Extender(Parent)
    Form(hWnd)
    IOleControlSite::GetExtendedControl
    Extender(Parent)
    Form(hWnd)
    IOleInPlaceFrame::SetActiveObject(Nothing)
    IOleInPlaceSite::OnUIDeactivate
    IOleInPlaceSite::OnInPlaceDeactivate
)");
}

TEST_F(OddOrder, MovesToAnotherWindowWhenTheOldOneIsGone) {
    EXPECT_SCRIPT(host_, R"(
DestroyWindow = its window stands
    IOleControlSite::OnFocus(False)
    IOleControlSite::GetExtendedControl
    Extender(Parent)
    Form(hWnd)
    IOleControlSite::GetExtendedControl
    Extender(Parent)
    Form(hWnd)
    IOleControlSite::OnControlInfoChanged
    Event(DropDown)
NewForm = shown
DoVerb InPlaceActivate = S_OK
    IOleInPlaceFrame::SetActiveObject(Nothing)
    IOleInPlaceSite::OnUIDeactivate
    IOleInPlaceSite::OnInPlaceDeactivate
    IOleInPlaceSite::CanInPlaceActivate
    IOleInPlaceSite::OnInPlaceActivate
    IOleInPlaceSite::GetWindow
    IOleInPlaceSite::GetWindowContext
    IOleClientSite::ShowObject
Where = 20 20 220 41
DoVerb UIActivate = S_OK
    Ambient(UIDead)
    IOleInPlaceSite::OnUIActivate
    IOleInPlaceFrame::SetActiveObject(object)
    IOleInPlaceFrame::SetBorderSpace
    Ambient(UIDead)
    IOleControlSite::OnFocus(True)
ShowList = S_OK
    IOleControlSite::GetExtendedControl
    Extender(Parent)
    Form(hWnd)
    IOleControlSite::GetExtendedControl
    Extender(Parent)
    Form(hWnd)
    IOleControlSite::GetExtendedControl
    Extender(Parent)
    Form(hWnd)
    IOleControlSite::OnControlInfoChanged
    Event(DropDown)
InPlaceDeactivate = S_OK
    IOleControlSite::OnFocus(False)
    IOleControlSite::GetExtendedControl
    Extender(Parent)
    Form(hWnd)
    IOleControlSite::GetExtendedControl
    Extender(Parent)
    Form(hWnd)
    IOleControlSite::OnControlInfoChanged
    Event(DropDown)
    Ambient(UIDead)
    IOleControlSite::OnFocus(True)
    IOleInPlaceFrame::SetActiveObject(Nothing)
    IOleInPlaceSite::OnUIDeactivate
    IOleControlSite::OnFocus(False)
    IOleInPlaceSite::OnInPlaceDeactivate
Unadvise = done
SetClientSite Nothing = S_OK
Release = gone
)");
}

TEST_F(OddOrder, DestroysTheWindowFirst) {
    EXPECT_SCRIPT(host_, R"(
DestroyWindow = its window stands
    IOleControlSite::OnFocus(False)
    IOleControlSite::GetExtendedControl
    Extender(Parent)
    Form(hWnd)
    IOleControlSite::GetExtendedControl
    Extender(Parent)
    Form(hWnd)
    IOleControlSite::OnControlInfoChanged
    Event(DropDown)
Where = nowhere
UIDeactivate = S_OK
    IOleInPlaceFrame::SetActiveObject(Nothing)
    IOleInPlaceSite::OnUIDeactivate
InPlaceDeactivate = S_OK
    IOleInPlaceSite::OnInPlaceDeactivate
Unadvise = done
Close = S_OK
SetClientSite Nothing = S_OK
Release = gone
)");
}

} // namespace
} // namespace vellora::test
