// A host that answers an error, or gives nothing, to one of the control's calls for a whole life; each of the
// calls in its turn. The calls are those of a life in which all goes well.
#include "com/support/whole_life.h"
#include "support/container/text.h"

#include <algorithm>
#include <set>

namespace vellora::test {
namespace {

struct Way {
    const char* name;
    void (*prescribe)(CallLog& log, const std::string& call);
};

template <HRESULT result>
void fail(CallLog& log, const std::string& call) {
    log.answer(call, result);
}

constexpr Way ways[] = {{"E_FAIL", fail<E_FAIL>},
                        {"nothing", [](CallLog& log, const std::string& call) { log.give_nothing(call); }},
                        {"E_NOTIMPL", fail<E_NOTIMPL>}};

std::string name_of(const std::string& call) {
    return call.substr(0, call.find('('));
}

std::set<std::string> names_of(const Life& life) {
    std::set<std::string> names;
    for (const std::string& call : life.calls)
        names.insert(name_of(call));
    return names;
}

/// Every call by its name, and those that come with different details by each of them: one ambient property alone
/// may fail.
std::set<std::string> calls_of(const Life& life) {
    std::set<std::string> calls = names_of(life);
    const std::set<std::string> lines(life.calls.begin(), life.calls.end());
    for (const std::string& line : lines)
        if (std::count_if(lines.begin(), lines.end(),
                          [&](const std::string& other) { return name_of(other) == name_of(line); }) > 1)
            calls.insert(line);
    return calls;
}

/// The steps that went another way than in a good life, in one line; empty when there are none.
std::string consequences(const Life& good, const Life& life) {
    std::string text;
    for (std::size_t i = 0; i < life.outcome.size(); ++i)
        if (i >= good.outcome.size() || life.outcome[i] != good.outcome[i])
            text += (text.empty() ? "" : ", ") + life.outcome[i];
    return text;
}

class FailingHost : public testing::TestWithParam<Beginning> {
protected:
    static void SetUpTestSuite() { live(Beginning::fresh); } // windows that stay for the whole program

    /// The calls of a new control are met again by a loaded one and by one that is activated quickly: fewer ways are
    /// enough there.
    static std::size_t ways_walked() {
        switch (GetParam()) {
        case Beginning::fresh:
            return std::size(ways);
        case Beginning::loaded:
            return 2;
        default:
            return 1;
        }
    }

    void walk(const std::string& name, const std::function<void(Site&)>& prepare) {
        const Life life = live(GetParam(), prepare);
        EXPECT_TRUE(same_lines({}, life.left)) << name;
        if (const std::string changed = consequences(good_, life); !changed.empty())
            felt_.push_back(name + ": " + changed);
    }

    static Lines needed_calls();
    static Lines needed_interfaces();

    Life good_ = live(GetParam());
    Lines felt_; // what the control could not do without
};

TEST_P(FailingHost, AGoodLifeLeavesNothing) {
    EXPECT_TRUE(same_lines({}, good_.left));
    for (const char* call :
         {"IOleClientSite::", "IOleInPlaceSite::", "IOleInPlaceFrame::", "IOleControlSite::", "Ambient(", "Extender(",
          "IPropertyBag::", "IAdviseSink::", "IPropertyNotifySink::OnRequestEdit", "IPropertyNotifySink::OnChanged",
          "Event("})
        EXPECT_TRUE(std::any_of(good_.calls.begin(), good_.calls.end(), [&](const std::string& line) {
            return line.find(call) == 0;
        })) << call;
}

/// What happens to a control that is not let into its place.
const std::string unplaced = ": activate: 80004005, work with: 80004005, visible: 0, chosen: assigned, open: 0, "
                             "saved: \"assigned\"";

// A place, the work in it and something to write to: a control cannot do without these. A bag that says it gave a
// value is believed, and some values make no control.
Lines FailingHost::needed_calls() {
    Lines needed;
    const auto need = [&](const std::string& call, const std::string& consequence) {
        needed.push_back(call + " E_FAIL" + consequence);
    };
    need("IOleInPlaceSite::CanInPlaceActivate", unplaced);
    need("IOleInPlaceSite::OnInPlaceActivate", unplaced);
    need("IOleInPlaceSite::OnUIActivate", ": work with: 80004005");
    if (GetParam() == Beginning::loaded)
        needed.push_back("IPropertyBag::Read nothing: load: 800A017D, chosen: assigned, saved: \"assigned\"");
    needed.push_back("IPropertyBag::Write E_FAIL: save: 80004005, saved: Empty");
    if (GetParam() != Beginning::quick)
        needed.push_back("IPropertyBag::Write nothing: saved: Empty");
    if (GetParam() == Beginning::fresh)
        needed.push_back("IPropertyBag::Write E_NOTIMPL: save: 80004001, saved: Empty");
    return needed;
}

Lines FailingHost::needed_interfaces() {
    if (GetParam() == Beginning::quick)
        return {"IOleClientSite" + unplaced, "IOleInPlaceSite" + unplaced, "IPropertyNotifySink: cookies: 10"};
    return {"IOleInPlaceSite" + unplaced, "IPropertyNotifySink: listen: 80040202"};
}

std::string interface_name(REFIID id) {
    if (IsEqualIID(id, IID_IOleClientSite))
        return "IOleClientSite";
    if (IsEqualIID(id, IID_IOleInPlaceSite))
        return "IOleInPlaceSite";
    if (IsEqualIID(id, IID_IPropertyNotifySink))
        return "IPropertyNotifySink";
    wchar_t name[40];
    StringFromGUID2(id, name, 40);
    return utf8(name);
}

TEST_P(FailingHost, EachCallFailsInItsTurn) {
    for (const std::string& call : calls_of(good_))
        for (std::size_t i = 0; i < ways_walked(); ++i)
            walk(call + " " + ways[i].name, [&](Site& site) { ways[i].prescribe(site.log(), call); });
    EXPECT_TRUE(same_lines(needed_calls(), felt_));
}

TEST_P(FailingHost, EachInterfaceIsMissingInItsTurn) {
    std::vector<IID> asked = good_.interfaces;
    std::sort(asked.begin(), asked.end(), [](const IID& a, const IID& b) { return memcmp(&a, &b, sizeof a) < 0; });
    asked.erase(std::unique(asked.begin(), asked.end()), asked.end());
    for (const IID& id : asked) {
        walk(interface_name(id), [&](Site& site) { site.state().withheld.push_back(id); });
    }
    std::sort(felt_.begin(), felt_.end());
    EXPECT_TRUE(same_lines(needed_interfaces(), felt_));
}

std::string life_name(const testing::TestParamInfo<Beginning>& life) {
    constexpr const char* names[] = {"Fresh", "Loaded", "Quick"};
    return names[static_cast<int>(life.param)];
}

struct Turn {
    const char* name;
    void (*take)(Site& site);
};

constexpr Turn turns[] = {{"deactivates", [](Site& site) { site.deactivate(); }},
                          {"takes the site away", [](Site& site) { site.take_site_away(); }},
                          {"closes", [](Site& site) { site.close(); }},
                          {"activates", [](Site& site) { site.ui_activate(); }},
                          {"loads", [](Site& site) { site.load(*ComPtr<PropertyBag>(new PropertyBag).Get()); }},
                          {"opens the list", [](Site& site) { site.as<_Vellora>()->ShowList(); }}};

class TurningHost : public FailingHost {
protected:
    /// Of a loaded control those that a new one does not make.
    std::set<std::string> calls() {
        std::set<std::string> calls = names_of(good_);
        if (GetParam() != Beginning::fresh)
            for (const std::string& known : names_of(live(Beginning::fresh)))
                calls.erase(known);
        return calls;
    }
};

TEST_P(TurningHost, EachCallTurnsBackToTheControl) {
    const std::set<std::string> walked = calls();
    EXPECT_FALSE(walked.empty());
    for (const std::string& call : walked)
        for (const Turn& turn : turns) {
            const Life life = live(GetParam(), [&](Site& site) { site.log().inside(call, [&] { turn.take(site); }); });
            EXPECT_TRUE(same_lines({}, life.left)) << call << " " << turn.name;
            EXPECT_EQ(good_.outcome.back(), life.outcome.back()) << call << " " << turn.name;
        }
}

INSTANTIATE_TEST_SUITE_P(Life, TurningHost, testing::Values(Beginning::fresh, Beginning::loaded), life_name);
INSTANTIATE_TEST_SUITE_P(Life, FailingHost, testing::Values(Beginning::fresh, Beginning::loaded, Beginning::quick),
                         life_name);

} // namespace
} // namespace vellora::test
