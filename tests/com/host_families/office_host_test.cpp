// Office-style hosts: settings in a storage or stream, an inactive control that is only drawn, activation by
// clicks, and a form that changes between design and run while its controls live.
#include "com/host_families/host_script.h"

namespace vellora::test {
namespace {

TEST(OfficeHost, DrawsAnInactiveControlAndActivatesItByAClick) {
    HostScript host(Form::Kind::plain, {53, 71, 253, 95});
    EXPECT_SCRIPT(host, R"(
Create = created
SetClientSite = S_OK
InitNew storage = S_OK
    Ambient(Font)
    Ambient(DisplayName)
Advise = S_OK
SetAdvise = S_OK
SetExtent 200 24 = S_OK
    IOleClientSite::RequestNewObjectLayout
    IAdviseSink::OnViewChange
    IAdviseSink::OnViewChange
Draw 53 71 253 95 = S_OK
Where = nowhere
UserMode False = announced
DoVerb Primary = S_OK
    Ambient(UserMode)
    IOleInPlaceSite::CanInPlaceActivate
    IOleInPlaceSite::OnInPlaceActivate
    IOleInPlaceSite::GetWindow
    IOleInPlaceSite::GetWindowContext
    IOleClientSite::ShowObject
Where = 53 71 253 92
UserMode True = announced
Click = clicked
    Ambient(UIDead)
    IOleInPlaceSite::OnUIActivate
    IOleInPlaceFrame::SetActiveObject(object)
    IOleInPlaceFrame::SetBorderSpace
    IOleControlSite::OnFocus(True)
    Event(MouseDown)
    Event(MouseUp)
AddItem one = S_OK
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
Choose 0 = clicked
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
UserMode False = announced
Save storage = S_OK
    Ambient(Font)
SaveCompleted = S_OK
UIDeactivate = S_OK
    IOleInPlaceFrame::SetActiveObject(Nothing)
    IOleInPlaceSite::OnUIDeactivate
InPlaceDeactivate = S_OK
    IOleControlSite::OnFocus(False)
    IOleInPlaceSite::OnInPlaceDeactivate
Focus = elsewhere
UserMode True = announced
Draw 53 71 253 95 = S_OK
DoVerb Primary = S_OK
    Ambient(UserMode)
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
Focus = in the control
InPlaceDeactivate = S_OK
    IOleInPlaceFrame::SetActiveObject(Nothing)
    IOleInPlaceSite::OnUIDeactivate
    IOleControlSite::OnFocus(False)
    IOleInPlaceSite::OnInPlaceDeactivate
HandsOffStorage = S_OK
Unadvise = done
Close saving = S_OK
SetClientSite Nothing = S_OK
Release = gone
)");
    EXPECT_TRUE(same_lines({}, host.left()));
}

TEST(OfficeHost, LoadsWhatItSaved) {
    HostScript host;
    EXPECT_SCRIPT(host, R"(
Create = created
SetClientSite = S_OK
InitNew storage = S_OK
    Ambient(Font)
    Ambient(DisplayName)
Save storage = S_OK
    IOleControlSite::GetExtendedControl
    Extender(Width)
    IOleControlSite::TransformCoords
    Ambient(Font)
SaveCompleted = S_OK
Save stream = S_OK
    Ambient(Font)
SetClientSite Nothing = S_OK
Release = gone
Create = created
SetClientSite = S_OK
Load storage = S_OK
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
    Extender(Width)
    IOleControlSite::TransformCoords
    Ambient(UserMode)
Text = "Vellora1"
IsDirty = S_FALSE
Draw 3 4 203 28 = S_OK
SetClientSite Nothing = S_OK
Release = gone
)");
    EXPECT_TRUE(same_lines({}, host.left()));
}

} // namespace
} // namespace vellora::test
