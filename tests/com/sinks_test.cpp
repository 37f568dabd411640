// Listeners that do what they like while they are called: take themselves or others out, bring in new ones, let
// go of the control, call it again.
#include "com/support/host_test.h"
#include "com/support/whole_life.h"
#include "support/container/advise_sink.h"
#include "support/container/library.h"
#include "support/container/own_object.h"
#include "support/container/text.h"

#include <utility>

namespace vellora::test {
namespace {

/// Property notices with a hook inside each.
class NoticeSink final : public OwnObject<IPropertyNotifySink> {
public:
    NoticeSink() : OwnObject({IID_IPropertyNotifySink}) {}
    STDMETHODIMP OnChanged(DISPID) override { return notice(); }
    STDMETHODIMP OnRequestEdit(DISPID) override { return notice(); }

    std::function<void()> on_notice;

private:
    HRESULT notice() {
        if (const auto hook = on_notice)
            hook();
        return E_FAIL;
    }
};

enum class Listener { event, notice, advise };

struct Case {
    Listener listener;
    const char* misdeed;
};

class Misbehaving : public HostTest, public testing::WithParamInterface<Case> {
protected:
    void SetUp() override {
        site_ = &container_.add_site(L"Vellora1", {20, 20, 220, 44});
        site_->take(Library::instance().create(__uuidof(Vellora)));
        control_ = vellora(*site_);
        ASSERT_EQ(S_OK, site_->give_site());
        ASSERT_EQ(S_OK, site_->init_new());
        ASSERT_EQ(S_OK, site_->activate());
        for (const wchar_t* row : {L"one", L"two", L"three"})
            ASSERT_EQ(S_OK, control_->AddItem(Variant(row).get(), -1));
        connect();
        connect();
    }

    // Two of the kind: whatever the first one does, the second one is affected.
    void connect() {
        if (GetParam().listener == Listener::event)
            connect_event();
        else if (GetParam().listener == Listener::notice)
            connect_notice();
        else
            connect_advise();
    }
    void connect_event() {
        ComPtr<EventSink> sink(new EventSink);
        sink->on_every([this](const std::string&, EventArguments&) { misbehave(); });
        cookies_.push_back(advise(event_interface(control_.Get()), sink.Get()));
    }
    void connect_notice() {
        ComPtr<NoticeSink> sink(new NoticeSink);
        sink->on_notice = [this] { misbehave(); };
        cookies_.push_back(advise(IID_IPropertyNotifySink, sink.Get()));
    }
    void connect_advise() {
        ComPtr<AdviseSink> sink(new AdviseSink(log_));
        sink->on_notice = [this] { misbehave(); };
        ComPtr<IViewObject> view;
        ComPtr<IOleObject> object;
        DWORD cookie = 0;
        ASSERT_EQ(S_OK, control_.As(&view));
        ASSERT_EQ(S_OK, control_.As(&object));
        view->SetAdvise(DVASPECT_CONTENT, 0, sink.Get());
        object->Advise(sink.Get(), &cookie);
        cookies_.push_back(cookie);
    }
    ComPtr<IConnectionPoint> point(REFIID id) {
        ComPtr<IConnectionPointContainer> points;
        ComPtr<IConnectionPoint> point;
        control_.As(&points);
        points->FindConnectionPoint(id, &point);
        return point;
    }
    DWORD advise(REFIID id, IUnknown* sink) {
        DWORD cookie = 0;
        EXPECT_EQ(S_OK, point(id)->Advise(sink, &cookie));
        return cookie;
    }

    void misbehave() {
        ++called_;
        if (!control_ || busy_ || tired_)
            return;
        busy_ = true;
        const std::string misdeed = GetParam().misdeed;
        if (misdeed == "LeavesFirst")
            disconnect(0);
        else if (misdeed == "TakesAllOut")
            disconnect_all();
        else if (misdeed == "BringsAnother" && cookies_.size() < 20)
            connect();
        else if (misdeed == "LetsGo")
            let_go();
        else if (misdeed == "Ends")
            end();
        else if (misdeed == "CallsAgain")
            call_again();
        else if (misdeed == "Deactivates")
            site_->deactivate();
        else if (misdeed == "Reactivates")
            reactivate();
        busy_ = false;
    }
    void disconnect(std::size_t index) {
        if (index >= cookies_.size())
            return;
        const DWORD cookie = std::exchange(cookies_[index], 0);
        if (GetParam().listener == Listener::event)
            point(event_interface(control_.Get()))->Unadvise(cookie);
        else if (GetParam().listener == Listener::notice)
            point(IID_IPropertyNotifySink)->Unadvise(cookie);
        else
            disconnect_advise(cookie);
    }
    void disconnect_advise(DWORD cookie) {
        ComPtr<IViewObject> view;
        ComPtr<IOleObject> object;
        control_.As(&view);
        control_.As(&object);
        view->SetAdvise(DVASPECT_CONTENT, 0, nullptr);
        object->Unadvise(cookie);
    }
    void disconnect_all() {
        for (std::size_t i = 0; i < cookies_.size(); ++i)
            disconnect(i);
    }
    /// Without any of the steps a host takes before.
    void let_go() {
        control_.Reset();
        site_->state().control.Reset();
    }
    void end() {
        control_.Reset();
        site_->destroy();
    }
    void call_again() {
        control_->put_Text(Bstr(L"again").get());
        control_->put_Columns(2);
        control_->ShowList();
        container_.pump();
        if (control_)
            control_->HideList();
        if (control_)
            control_->AddItem(Variant(L"more").get(), 0);
        if (control_)
            control_->put_ListIndex(0);
    }
    void reactivate() {
        site_->deactivate();
        site_->activate();
    }

    // Everything a listener hears of.
    void work() {
        take([&] { control_->put_Text(Bstr(L"text").get()); });
        take([&] { control_->put_ListIndex(1); });
        take([&] { control_->put_CheckBoxes(VARIANT_TRUE); });
        take([&] { control_->put_Checked(1, VARIANT_TRUE); });
        take([&] { control_->ShowList(); });
        take([&] { site_->move({20, 20, 320, 44}); });
        take([&] { control_->HideList(); });
        take([&] { type(); });
        take([&] { site_->deactivate(); });
        take([&] { control_->put_Text(Bstr(L"inactive").get()); });
        take([&] { site_->close(); });
        take([&] { site_->activate(); });
    }
    template <class Step>
    void take(Step step) {
        const ComPtr<_Vellora> held = GetParam().misdeed == std::string("LetsGo") ? nullptr : control_;
        if (control_)
            step();
        container_.pump();
    }
    void type() {
        const HWND field = text_field(window_of(*site_));
        SetFocus(field);
        PostMessageW(field, WM_KEYDOWN, 'A', 1);
        PostMessageW(field, WM_KEYUP, 'A', static_cast<LPARAM>(0xC0000001U));
    }

    CallLog log_;
    Site* site_ = nullptr;
    ComPtr<_Vellora> control_;
    std::vector<DWORD> cookies_;
    int called_ = 0;
    bool busy_ = false;
    bool tired_ = false;
};

TEST_P(Misbehaving, DoesNoHarm) {
    work();
    EXPECT_GT(called_, 0);
    tired_ = true;
    if (control_) {
        EXPECT_EQ(S_OK, site_->ui_activate());
        EXPECT_TRUE(IsWindowVisible(window_of(*site_)));
        control_->HideList();
        EXPECT_EQ(S_OK, control_->ShowList());
        container_.pump();
        EXPECT_EQ(1U, floating_windows().size());
        EXPECT_EQ(S_OK, control_->HideList());
        end();
    }
    EXPECT_TRUE(floating_windows().empty());
    EXPECT_EQ(S_OK, Library::instance().can_unload());
}

std::vector<Case> all_cases() {
    std::vector<Case> cases;
    for (const Listener listener : {Listener::event, Listener::notice, Listener::advise})
        for (const char* misdeed : {"LeavesFirst", "TakesAllOut", "BringsAnother", "LetsGo", "Ends", "CallsAgain",
                                    "Deactivates", "Reactivates"})
            cases.push_back({listener, misdeed});
    return cases;
}

std::string case_name(const testing::TestParamInfo<Case>& info) {
    constexpr const char* names[] = {"Event", "Notice", "Advise"};
    return std::string(names[static_cast<int>(info.param.listener)]) + info.param.misdeed;
}

INSTANTIATE_TEST_SUITE_P(Sink, Misbehaving, testing::ValuesIn(all_cases()), case_name);

using Reactivation = HostTest;

TEST_F(Reactivation, InsideTheEventOfADeactivationLeavesTheControlWhole) {
    Site& site = place();
    ASSERT_EQ(S_OK, vellora(site)->AddItem(Variant(L"one").get(), -1));
    ASSERT_EQ(S_OK, site.ui_activate());
    ASSERT_EQ(S_OK, vellora(site)->ShowList());
    container_.pump();
    site.log().take();
    HRESULT inside = E_FAIL;
    site.events().on("DropDown", [&](EventArguments&) { inside = site.activate(); });
    ASSERT_EQ(S_OK, site.deactivate());
    EXPECT_EQ(S_OK, inside);
    EXPECT_FALSE(IsWindowVisible(window_of(site)));
    EXPECT_FALSE(site.log().contains("IOleInPlaceSite::OnInPlaceActivate"));
    EXPECT_TRUE(site.log().contains("IOleInPlaceSite::OnInPlaceDeactivate"));
    ASSERT_EQ(S_OK, site.activate());
    EXPECT_TRUE(IsWindowVisible(window_of(site)));
}

} // namespace
} // namespace vellora::test
