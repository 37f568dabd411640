// A control with as little in it as possible, which notes what the hosting asks of it.
#pragma once

#include "com/control_client.h"
#include "com/control_host.h"
#include "com/control_object.h"
#include "com/dispatch.h"

#include <ocidl.h>

#include "fixture.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace vellora::test {

using com::ComPtr;
using Lines = std::vector<std::string>;

class FixtureControl;

class FixtureMembers final : public com::Dispatch<IFixture> {
public:
    FixtureMembers(com::ControlHost& host, FixtureControl& control)
        : com::Dispatch<IFixture>(host.controlling(), host.types()), control_(control) {}
    ~FixtureMembers() = default;

    STDMETHODIMP get_Text(BSTR* result) noexcept override;
    STDMETHODIMP put_Text(BSTR value) noexcept override;
    STDMETHODIMP Halve(short* number) noexcept override;
    STDMETHODIMP Rename(BSTR* name) noexcept override;
    STDMETHODIMP Describe(VARIANT value, BSTR* result) noexcept override;
    STDMETHODIMP get_Color(OLE_COLOR* result) noexcept override;
    STDMETHODIMP get_Mode(fixMode* result) noexcept override;
    STDMETHODIMP put_Mode(fixMode value) noexcept override;
    STDMETHODIMP get_Font(IFontDisp** result) noexcept override;
    STDMETHODIMP putref_Font(IFontDisp* value) noexcept override;
    STDMETHODIMP Fail(long number) noexcept override;
    STDMETHODIMP Add(short* first, short second, long* result) noexcept override;
    STDMETHODIMP Turn(fixMode* mode) noexcept override;

private:
    FixtureControl& control_;
};

/// Its one setting is a text; its window is a plain one.
class FixtureControl final : public com::ControlClient {
public:
    explicit FixtureControl(com::ControlHost& host);
    ~FixtureControl() override;

    /// The one made last, null when it is gone.
    static FixtureControl* last;

    com::ControlHost& host() noexcept { return host_; }
    Lines take_lines() { return std::exchange(lines_, {}); }
    /// Also called while the hosting is inside on_resized.
    std::function<void()> when_resized;
    std::function<com::KeyRoute(const MSG&)> when_key;
    std::u16string text;
    fixMode mode = fixPlain;
    ComPtr<IFontDisp> font;

    void* interface_of(REFIID id) override;
    HWND window() override { return window_; }
    SIZE natural_size() override { return {121, 21}; }
    void on_resized() override;
    void draw(HDC dc, const RECT& bounds) override;
    void on_ambient_changed(DISPID id) override;
    void initialise_new() override;
    void load(com::PropertyStore& store) override;
    void save(com::PropertyStore& store) override;
    void on_deactivated() override { note("deactivated"); }
    void on_ui_activated() override { note("ui active"); }
    void on_ui_deactivated() override { note("ui inactive"); }
    com::KeyRoute translate_key(const MSG& message) override;
    com::Mnemonics mnemonics() override { return {}; }
    void on_mnemonic(const MSG&) override { note("mnemonic"); }
    std::optional<com::PropertyCategory> category(DISPID property) override;

private:
    void note(const std::string& line) { lines_.push_back(line); }

    com::ControlHost& host_;
    FixtureMembers members_;
    HWND window_;
    Lines lines_;
};

inline constexpr com::ControlClass fixture_class = {
    {0xD7C2E18B, 0x7C16, 0x4E9C, {0x8A, 0xB1, 0x58, 0xA2, 0x0D, 0x1F, 0x8F, 0x05}},
    {0xD7C2E18B, 0x7C16, 0x4E9C, {0x8A, 0xB1, 0x58, 0xA2, 0x0D, 0x1F, 0x8F, 0x03}},
    {0xD7C2E18B, 0x7C16, 0x4E9C, {0x8A, 0xB1, 0x58, 0xA2, 0x0D, 0x1F, 0x8F, 0x04}},
    L"Fixture"};

ComPtr<IUnknown> make_fixture(IUnknown* outer = nullptr);

} // namespace vellora::test
