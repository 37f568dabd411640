// wx-style hosts: no Font, DisplayName or UIDead, a locale of 0, the window and its place asked for before
// activation, and no other size than the host's own.
#include "com/host_families/host_script.h"

#include <olectl.h>

namespace vellora::test {
namespace {

class WxHost : public testing::Test {
protected:
    WxHost() {
        Ambients& ambients = host_.site().ambients();
        for (const DISPID missing : {DISPID_AMBIENT_FONT, DISPID_AMBIENT_DISPLAYNAME, DISPID_AMBIENT_UIDEAD})
            ambients.withhold(missing);
        ambients.give(DISPID_AMBIENT_LOCALEID, 0);
        host_.site().state().has_extender = false;
        host_.site().state().grants_sizes = false;
    }

    HostScript host_;
};

TEST_F(WxHost, PlacesTheControlBeforeActivation) {
    EXPECT_SCRIPT(host_, R"(
Create = created
SetClientSite = S_OK
InitNew stream = S_OK
    Ambient(Font)
    Ambient(DisplayName)
    IOleControlSite::GetExtendedControl
SetAdvise = S_OK
GetWindow = a window
SetExtent 200 24 = S_OK
    IOleClientSite::RequestNewObjectLayout
    IAdviseSink::OnViewChange
    IAdviseSink::OnViewChange
SetObjectRects 15 25 215 60 = S_OK
    IOleClientSite::RequestNewObjectLayout
    IAdviseSink::OnViewChange
Where = nowhere
DoVerb InPlaceActivate = S_OK
    IOleInPlaceSite::CanInPlaceActivate
    IOleInPlaceSite::OnInPlaceActivate
    IOleInPlaceSite::GetWindow
    IOleInPlaceSite::GetWindowContext
    IOleInPlaceSite::OnPosRectChange(200 x 21)
    IOleClientSite::ShowObject
Where = 15 25 215 60
Advise = S_OK
DoVerb UIActivate = S_OK
    Ambient(UIDead)
    IOleInPlaceSite::OnUIActivate
    IOleInPlaceFrame::SetActiveObject(object)
    IOleInPlaceFrame::SetBorderSpace
    Ambient(UIDead)
    IOleControlSite::OnFocus(True)
Text = ""
AddItem one = S_OK
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
SetObjectRects 15 25 315 60 = S_OK
    IOleInPlaceSite::OnPosRectChange(300 x 21)
Where = 15 25 315 60
UIDeactivate = S_OK
    IOleInPlaceFrame::SetActiveObject(Nothing)
    IOleInPlaceSite::OnUIDeactivate
InPlaceDeactivate = S_OK
    IOleControlSite::OnFocus(False)
    IOleInPlaceSite::OnInPlaceDeactivate
Close = S_OK
SetClientSite Nothing = S_OK
Unadvise = done
Release = gone
)");
    EXPECT_TRUE(same_lines({}, host_.left()));
}

} // namespace
} // namespace vellora::test
