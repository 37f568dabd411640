// Fixtures: a form with one control on it, as the library's users have it.
#pragma once

#include "com/support/members.h"
#include "support/container/arrays.h"
#include "support/container/container.h"
#include "support/container/control_windows.h"
#include "support/container/failure.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace vellora::test {

using Microsoft::WRL::ComPtr;
using Lines = std::vector<std::string>;

/// "none" when the call succeeds, else `number source "..." description "..."`.
template <class Call>
std::string failure_text(Call call) {
    try {
        call();
    } catch (const CallFailed& failed) {
        return failed.failure().describe();
    }
    return "none";
}

/// What the library raises of itself, with the host's text.
std::string run_time_error(long number, const std::string& description);
/// What the control on the form raises under its own name.
std::string control_error(const std::string& name, long number, const std::string& description);

std::string row_missing();   // 381
std::string bad_value();     // 380
std::string out_of_bounds(); // 35600, the list's own
std::string overflow();      // 6
std::string bad_subscript(); // 9

/// A form that no window manager meddles with.
Form::Look bare_form(Form::Kind kind = Form::Kind::plain);

/// Compares sequences whole and shows where they part.
testing::AssertionResult same_lines(const Lines& expected, const Lines& actual);

/// A form in run mode with one active control of 200 by 24 pixels at (20, 20).
class HostTest : public testing::Test {
protected:
    Site& place(const std::wstring& name = L"Vellora1", const RECT& where = {20, 20, 220, 44});
    Site& design(const std::wstring& name = L"Vellora1");
    static ComPtr<_Vellora> vellora(Site& site) { return site.as<_Vellora>(); }
    static HWND window_of(Site& site);

    Container container_{bare_form()};
};

/// Runs each test twice, through the table and by name; `c()` is the control's members.
class MemberTest : public HostTest, public testing::WithParamInterface<const char*> {
protected:
    void SetUp() override { use(place()); }
    /// Lets `c()` and `site()` mean another control.
    void use(Site& site);
    Members& c() { return *members_; }
    Site& site() { return *site_; }
    Lines events() { return site_->events().take(); }
    Lines changed() { return std::exchange(site_->state().changed, {}); }
    void add(std::initializer_list<const wchar_t*> texts);

private:
    Site* site_ = nullptr;
    std::unique_ptr<Members> members_;
};

} // namespace vellora::test

/// Declares the two ways for the tests of one fixture.
#define VELLORA_BOTH_WAYS(Fixture)                                                                           \
    INSTANTIATE_TEST_SUITE_P(Called, Fixture, testing::Values("ByTable", "ByName"),                          \
                             [](const auto& way) { return std::string(way.param); })
