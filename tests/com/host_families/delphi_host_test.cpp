// Delphi-style hosts: the window is asked for early, settings travel in a stream, and a control is taken out
// of its place and put back while the form lives.
#include "com/host_families/host_script.h"

namespace vellora::test {
namespace {

TEST(DelphiHost, AsksForTheWindowEarly) {
    HostScript host;
    host.site().state().has_extender = false;
    EXPECT_SCRIPT(host, R"(
Create = created
SetClientSite = S_OK
Advise = S_OK
InitNew stream = S_OK
    Ambient(Font)
    Ambient(DisplayName)
GetWindow = a window
SetExtent 200 24 = S_OK
    IOleClientSite::RequestNewObjectLayout
DoVerb Show = S_OK
    IOleInPlaceSite::CanInPlaceActivate
    IOleInPlaceSite::OnInPlaceActivate
    IOleInPlaceSite::GetWindow
    IOleInPlaceSite::GetWindowContext
    IOleClientSite::ShowObject
GetWindow = a window
Where = 20 20 220 41
AddItem one = S_OK
Save stream = S_OK
    IOleControlSite::GetExtendedControl
    Ambient(Font)
InPlaceDeactivate = S_OK
    IOleInPlaceSite::OnInPlaceDeactivate
DoVerb InPlaceActivate = S_OK
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
    IOleInPlaceSite::GetWindow
    IOleControlSite::GetExtendedControl
    IOleInPlaceSite::GetWindow
    IOleControlSite::GetExtendedControl
    IOleInPlaceSite::GetWindow
    IOleControlSite::OnControlInfoChanged
    Event(DropDown)
InPlaceDeactivate = S_OK
    IOleControlSite::OnFocus(False)
    IOleControlSite::GetExtendedControl
    IOleInPlaceSite::GetWindow
    IOleControlSite::GetExtendedControl
    IOleInPlaceSite::GetWindow
    IOleControlSite::OnControlInfoChanged
    Event(DropDown)
    Ambient(UIDead)
    IOleControlSite::OnFocus(True)
    IOleInPlaceFrame::SetActiveObject(Nothing)
    IOleInPlaceSite::OnUIDeactivate
    IOleControlSite::OnFocus(False)
    IOleInPlaceSite::OnInPlaceDeactivate
UIDeactivate = S_OK
Load stream = S_OK
    Ambient(UserMode)
    Ambient(UserMode)
    Ambient(UserMode)
    Ambient(Font)
    Ambient(UserMode)
    Ambient(UserMode)
    Ambient(UserMode)
    Ambient(UserMode)
    IOleControlSite::GetExtendedControl
    Ambient(UserMode)
Text = "Vellora1"
SetClientSite Nothing = S_OK
Close = S_OK
Unadvise = done
Release = gone
)");
    EXPECT_TRUE(same_lines({}, host.left()));
}

} // namespace
} // namespace vellora::test
