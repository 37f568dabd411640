// C++ programs: a dialog with a control on it, without a library for hosting, extender or saved settings.
#include "com/host_families/host_script.h"

namespace vellora::test {
namespace {

TEST(CppDialog, HoldsAControl) {
    HostScript host(Form::Kind::dialog);
    host.site().ambients().withhold_all();
    host.site().state().has_extender = false;
    EXPECT_SCRIPT(host, R"(
Create = created
SetClientSite = S_OK
InitNew stream = S_OK
    Ambient(Font)
    Ambient(DisplayName)
    IOleControlSite::GetExtendedControl
DoVerb InPlaceActivate = S_OK
    IOleInPlaceSite::CanInPlaceActivate
    IOleInPlaceSite::OnInPlaceActivate
    IOleInPlaceSite::GetWindow
    IOleInPlaceSite::GetWindowContext
    IOleInPlaceSite::OnPosRectChange(200 x 21)
    IOleClientSite::ShowObject
Where = 20 20 220 41
Advise = S_OK
AddItem one = S_OK
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
    IOleControlSite::GetExtendedControl
    IOleInPlaceSite::GetWindow
    IOleControlSite::GetExtendedControl
    IOleInPlaceSite::GetWindow
    IOleControlSite::GetExtendedControl
    IOleInPlaceSite::GetWindow
    IOleControlSite::OnControlInfoChanged
    Event(DropDown)
Choose 0 = clicked
    IPropertyNotifySink::OnChanged(Text)
    Event(Click)
    IOleControlSite::GetExtendedControl
    IOleInPlaceSite::GetWindow
    IOleControlSite::GetExtendedControl
    IOleInPlaceSite::GetWindow
    IOleControlSite::OnControlInfoChanged
    Event(DropDown)
Text = "one"
Unadvise = done
Close = S_OK
    IOleInPlaceFrame::SetActiveObject(Nothing)
    IOleInPlaceSite::OnUIDeactivate
    IOleControlSite::OnFocus(False)
    IOleInPlaceSite::OnInPlaceDeactivate
SetClientSite Nothing = S_OK
Release = gone
)");
    EXPECT_TRUE(same_lines({}, host.left()));
}

} // namespace
} // namespace vellora::test
