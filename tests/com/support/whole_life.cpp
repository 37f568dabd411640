#include "com/support/whole_life.h"

#include "support/container/advise_sink.h"
#include "support/container/library.h"
#include "support/container/quick_host.h"
#include "support/container/text.h"

#include <cstdio>

namespace vellora::test {
namespace {

BOOL CALLBACK collect(HWND window, LPARAM list) {
    reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}
BOOL CALLBACK collect_with_children(HWND window, LPARAM list) {
    collect(window, list);
    EnumChildWindows(window, collect, list);
    return TRUE;
}

ComPtr<PropertyBag> saved_control() {
    const ComPtr<PropertyBag> bag(new PropertyBag);
    bag->put(L"Text", Variant(L"Vellora1"));
    bag->put(L"Columns", Variant(std::int16_t{1}));
    return bag;
}

class LifeInHost {
public:
    explicit LifeInHost(Beginning beginning) : beginning_(beginning) {}

    Life live(const std::function<void(Site&)>& prepare) {
        if (prepare)
            prepare(site_);
        site_.events().report_to(site_.log());
        site_.take(Library::instance().create(__uuidof(Vellora)));
        control_ = site_.as<_Vellora>();
        begin();
        watch();
        show();
        fill();
        type();
        drop_and_choose();
        resize();
        save();
        rest();
        end();
        return {outcome_, site_.log().take(), site_.state().asked, left()};
    }

private:
    void note(const char* step, HRESULT result) { outcome_.push_back(step + (": " + hex(result))); }
    void note(const char* step, const std::string& result) { outcome_.push_back(step + (": " + result)); }

    void begin() {
        if (beginning_ == Beginning::quick)
            begin_quickly();
        else
            note("set site", site_.give_site());
        if (beginning_ == Beginning::fresh) {
            note("init", site_.init_new());
        } else {
            bag_ = saved_control();
            bag_->report_to(site_.log());
            note("load", site_.load(*bag_.Get()));
        }
        if (beginning_ != Beginning::quick)
            note("listen", site_.listen());
    }

    void begin_quickly() {
        QACONTROL answer{};
        note("quick", quick_activate(site_, advises_.Get(), answer));
        note("cookies", std::to_string(answer.dwEventCookie) + std::to_string(answer.dwPropNotifyCookie));
    }

    void watch() {
        DWORD connection = 0;
        if (beginning_ != Beginning::quick)
            note("watch view", site_.as<IViewObject>()->SetAdvise(DVASPECT_CONTENT, 0, advises_.Get()));
        note("watch object", site_.as<IOleObject>()->Advise(advises_.Get(), &connection));
        FORMATETC format{CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF};
        note("watch data", site_.as<IDataObject>()->DAdvise(&format, ADVF_NODATA, advises_.Get(), &connection));
    }

    void show() {
        note("extent", site_.set_extent());
        note("activate", site_.activate());
        note("work with", site_.ui_activate());
        host_.pump();
        note("visible", std::to_string(IsWindowVisible(window())));
    }

    void fill() {
        for (const wchar_t* row : {L"one", L"two", L"three"})
            note("add", control_->AddItem(Variant(row).get(), -1));
        note("check", control_->put_Checked(1, VARIANT_TRUE));
    }

    void type() {
        const HWND field = text_field(window());
        SetFocus(field);
        for (const WORD key : {WORD{'A'}, WORD{VK_TAB}}) {
            PostMessageW(field, WM_KEYDOWN, key, 1);
            PostMessageW(field, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001U));
        }
        host_.pump();
        note("assign", control_->put_Text(Bstr(L"assigned").get()));
        note("text", utf8(text()));
    }

    void drop_and_choose() {
        note("drop", control_->ShowList());
        host_.pump();
        if (const HWND list = list_of(floating_window())) {
            const RECT row = row_rect(list, 1);
            POINT middle{(row.left + row.right) / 2, (row.top + row.bottom) / 2};
            ScreenToClient(list, &middle);
            PostMessageW(list, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(middle.x, middle.y));
            PostMessageW(list, WM_LBUTTONUP, 0, MAKELPARAM(middle.x, middle.y));
            host_.pump();
        }
        note("chosen", utf8(text()));
        note("drop again", control_->ShowList());
        host_.pump();
        note("open", std::to_string(floating_windows().size()));
        note("hide", control_->HideList());
        note("still open", std::to_string(floating_windows().size()));
    }

    void resize() {
        note("move", site_.move({10, 10, 310, 40}));
        note("width", std::to_string(screen_rect(window()).right - screen_rect(window()).left));
        note("own height", control_->put_AutoHeight(VARIANT_TRUE));
    }

    void save() {
        const ComPtr<PropertyBag> bag(new PropertyBag);
        bag->report_to(site_.log());
        note("save", site_.save(*bag.Get()));
        note("saved", bag->get(L"Text").describe());
    }

    void rest() {
        note("drop last", control_->ShowList());
        note("ui deactivate", site_.ui_deactivate());
        note("deactivate", site_.deactivate());
        note("still visible", std::to_string(IsWindowVisible(window())));
        note("assign inactive", control_->put_Text(Bstr(L"inactive").get()));
        note("size inactive", site_.set_extent());
        const HDC dc = CreateCompatibleDC(nullptr);
        const RECTL bounds{5, 5, 205, 29};
        note("draw", site_.as<IViewObject>()->Draw(DVASPECT_CONTENT, -1, nullptr, nullptr, nullptr, dc, &bounds,
                                                   nullptr, nullptr, 0));
        DeleteDC(dc);
    }

    void end() {
        site_.stop_listening();
        note("close", site_.as<IOleObject>()->Close(OLECLOSE_SAVEIFDIRTY));
        note("no site", site_.take_site_away());
        control_.Reset();
        note("references", std::to_string([&] {
                 IUnknown* last = site_.state().control.Detach();
                 return last->Release();
             }()));
    }

    Lines left() {
        Lines left;
        if (site_.references() != 1)
            left.push_back("references to the site");
        if (site_.events().references() != 1)
            left.push_back("references to the event sink");
        if (static_cast<AdviseSink*>(advises_.Get())->references() != 1)
            left.push_back("references to the advise sink");
        if (Library::instance().can_unload() != S_OK)
            left.push_back("the library is in use");
        host_.destroy_form();
        if (windows_of_thread().size() != windows_before_)
            left.push_back("windows");
        return left;
    }

    HWND window() {
        LONG handle = 0;
        control_->get_hWnd(&handle);
        return reinterpret_cast<HWND>(static_cast<LONG_PTR>(handle));
    }
    std::wstring text() {
        Bstr text;
        control_->get_Text(text.out());
        return text.text();
    }

    Beginning beginning_;
    std::size_t windows_before_ = windows_of_thread().size();
    Container host_{bare_form()};
    Site& site_ = host_.add_site(L"Vellora1", {20, 20, 220, 50});
    ComPtr<AdviseSink> advises_{new AdviseSink(site_.log())};
    ComPtr<PropertyBag> bag_;
    ComPtr<_Vellora> control_;
    Lines outcome_;
};

} // namespace

Life live(Beginning beginning, const std::function<void(Site&)>& prepare) {
    return LifeInHost(beginning).live(prepare);
}

std::vector<HWND> windows_of_thread() {
    std::vector<HWND> windows;
    EnumThreadWindows(GetCurrentThreadId(), collect_with_children, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

std::string hex(HRESULT result) {
    char text[16];
    std::snprintf(text, sizeof text, "%08lX", static_cast<unsigned long>(result));
    return text;
}

} // namespace vellora::test
