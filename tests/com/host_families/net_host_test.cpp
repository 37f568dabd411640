// .NET-style hosts: one quick call first, then the doors of persistence in their own order, and rectangles
// that do not begin at 0, 0.
#include "com/host_families/host_script.h"

namespace vellora::test {
namespace {

TEST(NetHost, SaysEverythingInOneCall) {
    HostScript host(Form::Kind::plain, {37, 91, 237, 115});
    EXPECT_SCRIPT(host, R"(
Create = created
QueryInterface IQuickActivate = S_OK
QuickActivate = S_OK, connected
FreezeEvents True = S_OK
QueryInterface IPersistStreamInit = S_OK
InitNew stream = S_OK
    Ambient(Font)
    Ambient(DisplayName)
FreezeEvents False = S_OK
SetExtent 200 24 = S_OK
    IOleClientSite::RequestNewObjectLayout
    IAdviseSink::OnViewChange
    IAdviseSink::OnViewChange
DoVerb InPlaceActivate = S_OK
    IOleInPlaceSite::CanInPlaceActivate
    IOleInPlaceSite::OnInPlaceActivate
    IOleInPlaceSite::GetWindow
    IOleInPlaceSite::GetWindowContext
    IOleClientSite::ShowObject
SetObjectRects 37 91 287 121 = S_OK
    IOleInPlaceSite::OnPosRectChange(250 x 21)
Where = 37 91 287 112
DoVerb UIActivate = S_OK
    Ambient(UIDead)
    IOleInPlaceSite::OnUIActivate
    IOleInPlaceFrame::SetActiveObject(object)
    IOleInPlaceFrame::SetBorderSpace
    Ambient(UIDead)
    IOleControlSite::OnFocus(True)
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
Text = "one"
IsDirty = S_OK
Save stream = S_OK
    Ambient(Font)
IsDirty = S_FALSE
UIDeactivate = S_OK
    IOleInPlaceFrame::SetActiveObject(Nothing)
    IOleInPlaceSite::OnUIDeactivate
InPlaceDeactivate = S_OK
    IOleControlSite::OnFocus(False)
    IOleInPlaceSite::OnInPlaceDeactivate
DoVerb Hide = S_OK
Unadvise = done
Close = S_OK
SetClientSite Nothing = S_OK
Release = gone
)");
    EXPECT_TRUE(same_lines({}, host.left()));
}

TEST(NetHost, TriesOneDoorOfPersistenceAfterTheOther) {
    HostScript host(Form::Kind::plain, {37, 91, 237, 115});
    EXPECT_SCRIPT(host, R"(
Create = created
QuickActivate = S_OK, connected
QueryInterface IPersistStreamInit = S_OK
QueryInterface IPersistStream = S_OK
QueryInterface IPersistStorage = S_OK
QueryInterface IPersistPropertyBag = S_OK
InitNew stream = S_OK
    Ambient(Font)
    Ambient(DisplayName)
InitNew storage = 800401F1
InitNew bag = E_UNEXPECTED
Save storage = S_OK
    IOleControlSite::GetExtendedControl
    Extender(Width)
    IOleControlSite::TransformCoords
    Ambient(Font)
SaveCompleted = S_OK
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
    IAdviseSink::OnViewChange
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
    IAdviseSink::OnViewChange
Text = ""
SetClientSite Nothing = S_OK
Release = gone
)");
    EXPECT_TRUE(same_lines({}, host.left()));
}

} // namespace
} // namespace vellora::test
