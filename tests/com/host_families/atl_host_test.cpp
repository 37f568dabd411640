// ATL-style hosts: a control is initialised before it has a site, there are no ambients and no extender, and
// most calls to the site are not implemented.
#include "com/host_families/host_script.h"

namespace vellora::test {
namespace {

class AtlStyleHost : public testing::Test {
protected:
    AtlStyleHost() {
        Site& site = host_.site();
        site.ambients().withhold_all();
        site.state().has_extender = false;
        site.state().grants_sizes = false;
        for (const char* call :
             {"IOleClientSite::ShowObject", "IOleClientSite::RequestNewObjectLayout",
              "IOleControlSite::OnControlInfoChanged", "IOleControlSite::TransformCoords",
              "IOleControlSite::TranslateAccelerator", "IOleControlSite::OnFocus", "IOleInPlaceSite::OnPosRectChange",
              "IOleInPlaceFrame::SetActiveObject", "IOleInPlaceFrame::SetBorderSpace"})
            site.log().answer(call, E_NOTIMPL);
    }

    HostScript host_;
};

TEST_F(AtlStyleHost, InitialisesBeforeItGivesASite) {
    EXPECT_SCRIPT(host_, R"(
Create = created
QueryInterface IPersistStreamInit = S_OK
InitNew stream = S_OK
SetClientSite = S_OK
    Ambient(Font)
    Ambient(DisplayName)
    IOleControlSite::GetExtendedControl
SetExtent 200 24 = S_OK
    IOleClientSite::RequestNewObjectLayout
SetAdvise = S_OK
DoVerb InPlaceActivate = S_OK
    IOleInPlaceSite::CanInPlaceActivate
    IOleInPlaceSite::OnInPlaceActivate
    IOleInPlaceSite::GetWindow
    IOleInPlaceSite::GetWindowContext
    IOleInPlaceSite::OnPosRectChange(200 x 21)
    IOleClientSite::ShowObject
Where = 20 20 220 44
Advise = S_OK
SetObjectRects 10 10 310 34 = S_OK
    IOleInPlaceSite::OnPosRectChange(300 x 21)
Where = 10 10 310 34
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
    EXPECT_TRUE(same_lines({}, host_.left()));
}

} // namespace
} // namespace vellora::test
