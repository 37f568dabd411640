#include "com/host_families/host_script.h"

#include "com/support/whole_life.h"
#include "support/container/library.h"
#include "support/container/quick_host.h"
#include "support/container/text.h"

#include <algorithm>
#include <cstdio>
#include <map>

namespace vellora::test {
namespace {

std::string name_of(HRESULT result) {
    static const std::map<HRESULT, std::string> names = {
        {S_OK, "S_OK"},           {S_FALSE, "S_FALSE"},           {E_FAIL, "E_FAIL"},
        {E_NOTIMPL, "E_NOTIMPL"}, {E_UNEXPECTED, "E_UNEXPECTED"}, {E_NOINTERFACE, "E_NOINTERFACE"}};
    const auto found = names.find(result);
    return found == names.end() ? hex(result) : found->second;
}

/// Four numbers, or two for a size.
RECT rect_of(const std::string& text) {
    RECT rect{};
    if (std::sscanf(text.c_str(), "%ld %ld %ld %ld", &rect.left, &rect.top, &rect.right, &rect.bottom) == 2)
        rect = {0, 0, rect.left, rect.top};
    return rect;
}

std::string text_of(const RECT& rect) {
    return std::to_string(rect.left) + " " + std::to_string(rect.top) + " " + std::to_string(rect.right) + " " +
           std::to_string(rect.bottom);
}

LONG verb_of(const std::string& name) {
    static const std::map<std::string, LONG> verbs = {{"Primary", OLEIVERB_PRIMARY},
                                                      {"Show", OLEIVERB_SHOW},
                                                      {"Hide", OLEIVERB_HIDE},
                                                      {"UIActivate", OLEIVERB_UIACTIVATE},
                                                      {"InPlaceActivate", OLEIVERB_INPLACEACTIVATE}};
    return verbs.at(name);
}

std::string asked(Site& site, const std::string& interface_name) {
    static const std::map<std::string, IID> ids = {{"IQuickActivate", IID_IQuickActivate},
                                                   {"IPersistStreamInit", IID_IPersistStreamInit},
                                                   {"IPersistStream", IID_IPersistStream},
                                                   {"IPersistStorage", IID_IPersistStorage},
                                                   {"IPersistPropertyBag", IID_IPersistPropertyBag},
                                                   {"IPointerInactive", IID_IPointerInactive},
                                                   {"IOleInPlaceObjectWindowless", IID_IOleInPlaceObjectWindowless},
                                                   {"IOleCache", IID_IOleCache},
                                                   {"IRunnableObject", IID_IRunnableObject},
                                                   {"IViewObjectEx", IID_IViewObjectEx}};
    ComPtr<IUnknown> found;
    return name_of(site.control()->QueryInterface(ids.at(interface_name), &found));
}

ComPtr<IStorage> make_storage() {
    ComPtr<ILockBytes> bytes;
    ComPtr<IStorage> storage;
    CreateILockBytesOnHGlobal(nullptr, TRUE, &bytes);
    StgCreateDocfileOnILockBytes(bytes.Get(), STGM_CREATE | STGM_READWRITE | STGM_SHARE_EXCLUSIVE, 0, &storage);
    return storage;
}

ComPtr<IStream> make_stream() {
    ComPtr<IStream> stream;
    CreateStreamOnHGlobal(nullptr, TRUE, &stream);
    return stream;
}

} // namespace

HostScript::HostScript(Form::Kind kind, const RECT& place)
    : host_(bare_form(kind)), site_(host_.add_site(L"Vellora1", place)), stream_(make_stream()),
      storage_(make_storage()) {
    site_.events().report_to(site_.log());
    site_.events().ignore("MouseMove");
}

Lines HostScript::run(const Lines& script) {
    Lines went;
    for (const std::string& line : script) {
        if (line.empty() || line[0] == ' ')
            continue;
        const std::string step = line.substr(0, line.find(" = "));
        site_.log().take();
        went.push_back(step + " = " + take_step(step));
        for (const std::string& call : site_.log().take())
            went.push_back("    " + call);
    }
    return went;
}

std::string HostScript::take_step(const std::string& step) {
    const std::size_t space = step.find(' ');
    const std::string name = step.substr(0, space);
    const std::string argument = space == std::string::npos ? "" : step.substr(space + 1);
    std::string result = answer(name, argument);
    host_.pump();
    return result;
}

std::string HostScript::answer(const std::string& step, const std::string& argument) {
    for (const auto group :
         {&HostScript::life_step, &HostScript::stored_step, &HostScript::placed_step, &HostScript::user_step})
        if (std::string result = (this->*group)(step, argument); !result.empty())
            return result;
    return "no such step";
}

std::string HostScript::create(const std::string& way) {
    ComPtr<IUnknown> control;
    if (way == "aggregated") {
        outer_ = new OuterObject;
        outer_->inner = Library::instance().create(__uuidof(Vellora), outer_.Get());
        control = outer_;
    } else {
        control = Library::instance().create(__uuidof(Vellora));
    }
    site_.take(control);
    window_ = window();
    return "created";
}

std::string HostScript::quick() {
    QACONTROL answer{};
    const HRESULT result = quick_activate(site_, advises_.Get(), answer);
    return name_of(result) + (answer.dwEventCookie && answer.dwPropNotifyCookie ? ", connected" : ", unconnected");
}

std::string HostScript::life_step(const std::string& step, const std::string& argument) {
    if (step == "Create")
        return create(argument);
    if (step == "SetClientSite")
        return name_of(argument == "Nothing" ? site_.take_site_away() : site_.give_site());
    if (step == "QueryInterface")
        return asked(site_, argument);
    if (step == "QuickActivate")
        return quick();
    if (step == "Advise")
        return name_of(site_.listen());
    if (step == "SetAdvise")
        return name_of(site_.as<IViewObject>()->SetAdvise(DVASPECT_CONTENT, 0, advises_.Get()));
    if (step == "FreezeEvents")
        return name_of(site_.as<IOleControl>()->FreezeEvents(argument == "True"));
    if (step == "UserMode") {
        site_.ambients().give(DISPID_AMBIENT_USERMODE, argument == "True");
        site_.ambients().announce(DISPID_AMBIENT_USERMODE);
        return "announced";
    }
    if (step == "Close")
        return name_of(site_.as<IOleObject>()->Close(argument == "saving" ? OLECLOSE_SAVEIFDIRTY : OLECLOSE_NOSAVE));
    if (step == "Unadvise") {
        site_.stop_listening();
        return "done";
    }
    if (step == "Release") {
        site_.state().control.Reset();
        outer_.Reset();
        // A form holds the object that is active on it.
        host_.form().set_active_object(nullptr);
        return IsWindow(window_) ? "its window stands" : "gone";
    }
    if (step == "DestroyWindow") {
        host_.destroy_form();
        return IsWindow(window_) ? "its window stands" : "its window is gone";
    }
    if (step == "NewForm") {
        next_form_ = std::make_unique<Form>(bare_form());
        site_.state().form = next_form_.get();
        return "shown";
    }
    return {};
}

std::string HostScript::stored_step(const std::string& step, const std::string& argument) {
    if (step == "InitNew")
        return name_of(init_new(argument));
    if (step == "Load")
        return name_of(load(argument));
    if (step == "Save")
        return name_of(save(argument));
    if (step == "SaveCompleted")
        return name_of(site_.as<IPersistStorage>()->SaveCompleted(nullptr));
    if (step == "HandsOffStorage")
        return name_of(site_.as<IPersistStorage>()->HandsOffStorage());
    if (step == "IsDirty")
        return name_of(site_.as<IPersistStreamInit>()->IsDirty());
    if (step == "Saved")
        return bag_->get(wide(argument)).describe();
    return {};
}

std::string HostScript::placed_step(const std::string& step, const std::string& argument) {
    const RECT rect = rect_of(argument);
    if (step == "DoVerb")
        return name_of(site_.verb(verb_of(argument)));
    if (step == "SetExtent")
        return name_of(set_extent(rect));
    if (step == "SetObjectRects") {
        site_.state().place = rect;
        return name_of(site_.as<IOleInPlaceObject>()->SetObjectRects(&rect, &rect));
    }
    if (step == "GetWindow")
        return window() ? "a window" : "none";
    if (step == "Draw")
        return name_of(draw(rect));
    if (step == "UIDeactivate")
        return name_of(site_.ui_deactivate());
    if (step == "InPlaceDeactivate")
        return name_of(site_.deactivate());
    if (step == "Where")
        return where();
    return {};
}

std::string HostScript::user_step(const std::string& step, const std::string& argument) {
    const ComPtr<_Vellora> control = site_.as<_Vellora>();
    if (step == "AddItem")
        return name_of(control->AddItem(Variant(wide(argument)).get(), -1));
    if (step == "ShowList")
        return name_of(control->ShowList());
    if (step == "Click") {
        click(text_field(window_), {5, 5});
        return "clicked";
    }
    if (step == "Choose") {
        const HWND list = list_of(floating_window());
        const RECT row = row_rect(list, std::stoi(argument));
        POINT at{row.left + 5, (row.top + row.bottom) / 2};
        ScreenToClient(list, &at);
        click(list, at);
        return "clicked";
    }
    if (step == "Press") {
        PostMessageW(GetFocus(), WM_KEYDOWN, static_cast<WPARAM>(argument[0]), 1);
        return "pressed";
    }
    if (step == "Text") {
        Bstr text;
        control->get_Text(text.out());
        return '"' + utf8(text.text()) + '"';
    }
    if (step == "Focus")
        return IsChild(window_, GetFocus()) ? "in the control" : "elsewhere";
    if (step == "ListIndex") {
        LONG index = -2;
        control->get_ListIndex(&index);
        return std::to_string(index);
    }
    return {};
}

HRESULT HostScript::init_new(const std::string& door) {
    if (door == "bag")
        return site_.as<IPersistPropertyBag>()->InitNew();
    if (door == "storage")
        return site_.as<IPersistStorage>()->InitNew(storage_.Get());
    return site_.as<IPersistStreamInit>()->InitNew();
}

HRESULT HostScript::load(const std::string& door) {
    if (door == "bag")
        return site_.load(*bag_.Get());
    if (door == "storage")
        return site_.as<IPersistStorage>()->Load(storage_.Get());
    stream_->Seek({}, STREAM_SEEK_SET, nullptr);
    return site_.as<IPersistStreamInit>()->Load(stream_.Get());
}

HRESULT HostScript::save(const std::string& door) {
    if (door == "bag")
        return site_.save(*bag_.Get());
    if (door == "storage")
        return site_.as<IPersistStorage>()->Save(storage_.Get(), TRUE);
    stream_ = make_stream();
    return site_.as<IPersistStreamInit>()->Save(stream_.Get(), TRUE);
}

HRESULT HostScript::draw(const RECT& bounds) {
    const HDC screen = GetDC(nullptr);
    const HDC dc = CreateCompatibleDC(screen);
    ReleaseDC(nullptr, screen);
    const RECTL place{bounds.left, bounds.top, bounds.right, bounds.bottom};
    const HRESULT result =
        site_.as<IViewObject>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, dc, &place, nullptr, nullptr, 0);
    DeleteDC(dc);
    return result;
}

HRESULT HostScript::set_extent(const RECT& size) {
    const SIZE factor = twips_per_pixel();
    SIZEL extent{MulDiv(size.right * factor.cx, 2540, 1440), MulDiv(size.bottom * factor.cy, 2540, 1440)};
    return site_.as<IOleObject>()->SetExtent(DVASPECT_CONTENT, &extent);
}

/// In pixels of the form, or that the control is not on it.
std::string HostScript::where() {
    const HWND form = site_.state().form ? site_.state().form->window() : nullptr;
    if (!form || !IsWindowVisible(window_) || !IsChild(form, window_))
        return "nowhere";
    RECT rect = screen_rect(window_);
    MapWindowPoints(nullptr, form, reinterpret_cast<POINT*>(&rect), 2);
    return text_of(rect);
}

void HostScript::click(HWND window, POINT at) {
    PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(at.x, at.y));
    PostMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(at.x, at.y));
}

HWND HostScript::window() {
    HWND window = nullptr;
    if (const auto object = site_.as<IOleInPlaceObject>())
        object->GetWindow(&window);
    return window;
}

Lines lines_of(const std::string& text) {
    Lines lines;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        if (end > start)
            lines.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return lines;
}

Lines HostScript::left() {
    Lines left;
    if (site_.references() != 1)
        left.push_back("references to the site");
    if (site_.events().references() != 1)
        left.push_back("references to the event sink");
    if (!floating_windows().empty())
        left.push_back("an open list");
    if (Library::instance().can_unload() != S_OK)
        left.push_back("the library is in use");
    return left;
}

} // namespace vellora::test
