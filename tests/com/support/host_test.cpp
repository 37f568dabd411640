#include "com/support/host_test.h"

#include <ole2.h>

namespace vellora::test {
namespace {

class OleEnvironment final : public testing::Environment {
public:
    void SetUp() override { ASSERT_TRUE(SUCCEEDED(OleInitialize(nullptr))); }
    void TearDown() override { OleUninitialize(); }
};

[[maybe_unused]] const testing::Environment* const ole =
    testing::AddGlobalTestEnvironment(new OleEnvironment);

} // namespace

std::string run_time_error(long number, const std::string& description) {
    return control_error("VelloraCTL", number, description);
}

std::string control_error(const std::string& name, long number, const std::string& description) {
    return std::to_string(number) + " source \"" + name + "\" description \"" + description + '"';
}

std::string row_missing() {
    return run_time_error(381, "Invalid property array index");
}
std::string bad_value() {
    return run_time_error(380, "Invalid property value");
}
std::string out_of_bounds() {
    return run_time_error(35600, "Index out of bounds");
}
std::string overflow() {
    return run_time_error(6, "Overflow");
}
std::string bad_subscript() {
    return run_time_error(9, "Subscript out of range");
}

Form::Look bare_form(Form::Kind kind) {
    Form::Look look;
    look.kind = kind;
    look.bare = true;
    return look;
}

testing::AssertionResult same_lines(const Lines& expected, const Lines& actual) {
    const std::string parted = difference(expected, actual);
    if (parted.empty())
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "expected (-) and actual (+) sequence part:\n" << parted;
}

Site& HostTest::place(const std::wstring& name, const RECT& where) {
    return container_.add(__uuidof(Vellora), name, where);
}

Site& HostTest::design(const std::wstring& name) {
    return container_.add(__uuidof(Vellora), name, {20, 20, 220, 44}, true);
}

HWND HostTest::window_of(Site& site) {
    LONG handle = 0;
    if (const ComPtr<_Vellora> control = vellora(site))
        control->get_hWnd(&handle);
    return reinterpret_cast<HWND>(static_cast<LONG_PTR>(handle));
}

void MemberTest::use(Site& site) {
    site_ = &site;
    members_ = std::string(GetParam()) == "ByTable" ? members_by_table(site.as<_Vellora>())
                                                    : members_by_name(site.as<IDispatch>());
}

void MemberTest::add(std::initializer_list<const wchar_t*> texts) {
    for (const wchar_t* text : texts)
        c().add_item(text);
}

} // namespace vellora::test
