// Events and notices of changed properties, and what sinks may do inside them.
#include "hosting/support/hosting_test.h"
#include "support/container/event_sink.h"
#include "support/container/own_object.h"

namespace vellora::test {
namespace {

class ConnectionTest : public HostingTest {
protected:
    ComPtr<IConnectionPoint> point(REFIID id) const {
        ComPtr<IConnectionPoint> found;
        EXPECT_EQ(S_OK, as<IConnectionPointContainer>()->FindConnectionPoint(id, &found));
        return found;
    }
    ComPtr<IConnectionPoint> events() const { return point(__uuidof(DFixtureEvents)); }
    DWORD connect(EventSink* sink) const {
        DWORD cookie = 0;
        EXPECT_EQ(S_OK, events()->Advise(sink, &cookie));
        return cookie;
    }
    static void fire_done() { fixture().host().fire(1); }
};

class PropertySink final : public OwnObject<IPropertyNotifySink> {
public:
    PropertySink() : OwnObject({IID_IPropertyNotifySink}) {}
    STDMETHODIMP OnChanged(DISPID id) override {
        changed.push_back(id);
        return S_OK;
    }
    STDMETHODIMP OnRequestEdit(DISPID) override { return answer; }

    std::vector<DISPID> changed;
    HRESULT answer = S_OK;
};

TEST_F(ConnectionTest, ArgumentsComeInDeclaredOrderAndGoBack) {
    const ComPtr<EventSink> sink(new EventSink);
    sink->learn_names(control());
    connect(sink.Get());
    sink->on("Ask", [](EventArguments& arguments) { EXPECT_TRUE(arguments.set(1, true)); });
    VARIANT_BOOL cancel = VARIANT_FALSE;
    fixture().host().fire(2, com::by_value(std::int16_t{7}), com::boolean_by_reference(cancel));
    EXPECT_EQ((Lines{"Ask(I2 7, False)"}), sink->take());
    EXPECT_EQ(VARIANT_TRUE, cancel);
}

TEST_F(ConnectionTest, ASinkMayBeTheEventInterfaceOrPlainDispatch) {
    const ComPtr<EventSink> plain(new EventSink), exact(new EventSink);
    exact->also_answer(__uuidof(DFixtureEvents));
    connect(plain.Get());
    connect(exact.Get());
    fire_done();
    EXPECT_EQ(1U, plain->take().size());
    EXPECT_EQ(1U, exact->take().size());
    DWORD cookie = 7;
    EXPECT_EQ(CONNECT_E_CANNOTCONNECT, point(IID_IPropertyNotifySink)->Advise(plain.Get(), &cookie));
    EXPECT_EQ(0U, cookie);
    EXPECT_EQ(E_POINTER, events()->Advise(nullptr, &cookie));
}

TEST_F(ConnectionTest, ADisconnectedSinkHearsNothingAndIsLetGo) {
    const ComPtr<EventSink> sink(new EventSink);
    const DWORD cookie = connect(sink.Get());
    EXPECT_EQ(2U, sink->references());
    EXPECT_EQ(S_OK, events()->Unadvise(cookie));
    EXPECT_EQ(CONNECT_E_NOCONNECTION, events()->Unadvise(cookie));
    EXPECT_EQ(1U, sink->references());
    fire_done();
    EXPECT_TRUE(sink->take().empty());
}

TEST_F(ConnectionTest, ASinkMayDisconnectItselfAndOthersInsideAnEvent) {
    const ComPtr<EventSink> first(new EventSink), second(new EventSink);
    const DWORD cookies[] = {connect(first.Get()), connect(second.Get())};
    first->on_every([&](const std::string&, EventArguments&) {
        for (const DWORD cookie : cookies)
            events()->Unadvise(cookie);
    });
    fire_done();
    fire_done();
    EXPECT_EQ(1U, first->take().size());
    EXPECT_TRUE(second->take().empty());
}

TEST_F(ConnectionTest, ASinkConnectedInsideAnEventHearsTheNextOne) {
    const ComPtr<EventSink> first(new EventSink), late(new EventSink);
    connect(first.Get());
    bool connected = false;
    first->on_every([&](const std::string&, EventArguments&) {
        if (!std::exchange(connected, true))
            connect(late.Get());
    });
    fire_done();
    EXPECT_TRUE(late->take().empty());
    fire_done();
    EXPECT_EQ(1U, late->take().size());
}

TEST_F(ConnectionTest, TheControlMayBeLetGoInsideItsEvent) {
    const ComPtr<EventSink> first(new EventSink), second(new EventSink);
    connect(first.Get());
    connect(second.Get());
    first->on_every([&](const std::string&, EventArguments&) {
        release();
        EXPECT_NE(nullptr, FixtureControl::last);
    });
    fire_done();
    EXPECT_EQ(nullptr, FixtureControl::last);
    EXPECT_EQ(1U, second->take().size());
    EXPECT_EQ(1U, first->references());
}

TEST_F(ConnectionTest, FrozenEventsAreNotRaised) {
    const ComPtr<EventSink> sink(new EventSink);
    connect(sink.Get());
    const auto control_part = as<IOleControl>();
    EXPECT_EQ(S_OK, control_part->FreezeEvents(TRUE));
    EXPECT_EQ(S_OK, control_part->FreezeEvents(TRUE));
    EXPECT_EQ(S_OK, control_part->FreezeEvents(FALSE));
    fire_done();
    EXPECT_TRUE(sink->take().empty());
    EXPECT_EQ(S_OK, control_part->FreezeEvents(FALSE));
    fire_done();
    EXPECT_EQ(1U, sink->take().size());
}

TEST_F(ConnectionTest, PropertiesAreAnnouncedByTheirNames) {
    const ComPtr<PropertySink> sink(new PropertySink);
    DWORD cookie = 0;
    ASSERT_EQ(S_OK, point(IID_IPropertyNotifySink)->Advise(sink.Get(), &cookie));
    EXPECT_EQ(S_FALSE, as<IPersistStreamInit>()->IsDirty());
    fixture().host().property_changed(u"Mode");
    fixture().host().property_changed(u"no such property");
    EXPECT_EQ((std::vector<DISPID>{5}), sink->changed);
    EXPECT_EQ(S_OK, as<IPersistStreamInit>()->IsDirty());
}

TEST_F(ConnectionTest, AListenerMayForbidAChange) {
    EXPECT_TRUE(fixture().host().may_change(u"Mode"));
    const ComPtr<PropertySink> sink(new PropertySink);
    DWORD cookie = 0;
    ASSERT_EQ(S_OK, point(IID_IPropertyNotifySink)->Advise(sink.Get(), &cookie));
    EXPECT_TRUE(fixture().host().may_change(u"Mode"));
    sink->answer = S_FALSE;
    EXPECT_FALSE(fixture().host().may_change(u"Mode"));
}

TEST_F(ConnectionTest, PointsAndConnectionsAreEnumerated) {
    ComPtr<IEnumConnectionPoints> points;
    ASSERT_EQ(S_OK, as<IConnectionPointContainer>()->EnumConnectionPoints(&points));
    IConnectionPoint* two[3] = {};
    ULONG fetched = 0;
    EXPECT_EQ(S_FALSE, points->Next(3, two, &fetched));
    ASSERT_EQ(2U, fetched);
    IID id = {};
    EXPECT_EQ(S_OK, two[0]->GetConnectionInterface(&id));
    EXPECT_TRUE(id == __uuidof(DFixtureEvents));
    two[0]->Release();
    two[1]->Release();
    EXPECT_EQ(S_OK, points->Reset());
    EXPECT_EQ(S_FALSE, points->Skip(3));

    const ComPtr<EventSink> sink(new EventSink);
    const DWORD cookie = connect(sink.Get());
    ComPtr<IEnumConnections> connections, copy;
    ASSERT_EQ(S_OK, events()->EnumConnections(&connections));
    CONNECTDATA one = {};
    ASSERT_EQ(S_OK, connections->Next(1, &one, nullptr));
    EXPECT_EQ(cookie, one.dwCookie);
    one.pUnk->Release();
    ASSERT_EQ(S_OK, connections->Clone(&copy));
    EXPECT_EQ(S_FALSE, copy->Next(1, &one, nullptr));
}

TEST_F(ConnectionTest, AnUnknownPointIsNotFound) {
    ComPtr<IConnectionPoint> none;
    EXPECT_EQ(CONNECT_E_NOCONNECTION,
              as<IConnectionPointContainer>()->FindConnectionPoint(IID_IDispatch, &none));
}

} // namespace
} // namespace vellora::test
