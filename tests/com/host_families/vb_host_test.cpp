// VB-style hosts: the control is part of another object, settings come from a property bag, and ambients and
// extender are complete.
#include "com/host_families/host_script.h"

namespace vellora::test {
namespace {

TEST(VbHost, PutsANewControlOnAForm) {
    HostScript host;
    EXPECT_SCRIPT(host, R"(
Create aggregated = created
SetClientSite = S_OK
InitNew bag = S_OK
    Ambient(Font)
    Ambient(DisplayName)
Advise = S_OK
SetExtent 200 24 = S_OK
    IOleClientSite::RequestNewObjectLayout
DoVerb InPlaceActivate = S_OK
    IOleInPlaceSite::CanInPlaceActivate
    IOleInPlaceSite::OnInPlaceActivate
    IOleInPlaceSite::GetWindow
    IOleInPlaceSite::GetWindowContext
    IOleClientSite::ShowObject
Where = 20 20 220 41
Text = "Vellora1"
AddItem one = S_OK
AddItem two = S_OK
Click = clicked
    Ambient(UIDead)
    IOleInPlaceSite::OnUIActivate
    IOleInPlaceFrame::SetActiveObject(object)
    IOleInPlaceFrame::SetBorderSpace
    IOleControlSite::OnFocus(True)
    Event(MouseDown)
    Event(MouseUp)
ShowList = S_OK
    IOleControlSite::GetExtendedControl
    Extender(Width)
    IOleControlSite::TransformCoords
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
Choose 1 = clicked
    IPropertyNotifySink::OnChanged(Text)
    Event(Click)
    IOleControlSite::GetExtendedControl
    Extender(Parent)
    Form(hWnd)
    IOleControlSite::GetExtendedControl
    Extender(Parent)
    Form(hWnd)
    IOleControlSite::OnControlInfoChanged
    Event(DropDown)
Text = "two"
Save bag = S_OK
    Ambient(Font)
Saved Text = "two"
UIDeactivate = S_OK
    IOleInPlaceFrame::SetActiveObject(Nothing)
    IOleInPlaceSite::OnUIDeactivate
InPlaceDeactivate = S_OK
    IOleControlSite::OnFocus(False)
    IOleInPlaceSite::OnInPlaceDeactivate
Unadvise = done
Close = S_OK
SetClientSite Nothing = S_OK
Release = gone
)");
    EXPECT_TRUE(same_lines({}, host.left()));
}

TEST(VbHost, LoadsAControlOnTheChildOfAnMdiForm) {
    HostScript host(Form::Kind::mdi_child);
    EXPECT_SCRIPT(host, R"(
Create aggregated = created
SetClientSite = S_OK
Load bag = S_OK
    Ambient(UserMode)
    Ambient(UserMode)
    Ambient(UserMode)
    Ambient(Font)
    Ambient(UserMode)
    Ambient(UserMode)
    Ambient(UserMode)
    Ambient(UserMode)
    IOleControlSite::GetExtendedControl
    Extender(Width)
    IOleControlSite::TransformCoords
    Ambient(UserMode)
Advise = S_OK
SetExtent 200 24 = S_OK
    IOleClientSite::RequestNewObjectLayout
DoVerb InPlaceActivate = S_OK
    IOleInPlaceSite::CanInPlaceActivate
    IOleInPlaceSite::OnInPlaceActivate
    IOleInPlaceSite::GetWindow
    IOleInPlaceSite::GetWindowContext
    IOleClientSite::ShowObject
DoVerb UIActivate = S_OK
    Ambient(UIDead)
    IOleInPlaceSite::OnUIActivate
    IOleInPlaceFrame::SetActiveObject(object)
    IOleInPlaceFrame::SetBorderSpace
    IOleInPlaceUIWindow::SetActiveObject(object)
    IOleInPlaceUIWindow::SetBorderSpace
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
    IOleInPlaceUIWindow::SetActiveObject(Nothing)
    IOleInPlaceFrame::SetActiveObject(Nothing)
    IOleInPlaceSite::OnUIDeactivate
    IOleControlSite::OnFocus(False)
    IOleInPlaceSite::OnInPlaceDeactivate
Close = S_OK
Unadvise = done
SetClientSite Nothing = S_OK
Release = gone
)");
    EXPECT_TRUE(same_lines({}, host.left()));
}

} // namespace
} // namespace vellora::test
