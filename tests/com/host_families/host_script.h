// A host written down line by line. A line at the margin is a call of the host with the control's answer,
// `DoVerb UIActivate = S_OK`; the indented lines below it are what the control asks of its host meanwhile.
#pragma once

#include "com/support/host_test.h"
#include "support/container/advise_sink.h"
#include "support/container/own_object.h"

#include <objidl.h>

namespace vellora::test {

/// The object around an aggregated control: it has an identity of its own and hands on everything else.
class OuterObject final : public OwnObject<IUnknown> {
public:
    OuterObject() : OwnObject({}) {}
    STDMETHODIMP QueryInterface(REFIID id, void** object) override {
        return IsEqualIID(id, IID_IUnknown) || !inner ? OwnObject::QueryInterface(id, object)
                                                      : inner->QueryInterface(id, object);
    }

    ComPtr<IUnknown> inner;
};

class HostScript {
public:
    /// Place in pixels, as the host knows it.
    explicit HostScript(Form::Kind kind = Form::Kind::plain, const RECT& place = {20, 20, 220, 44});
    ~HostScript() { site_.lose_form(); }

    /// For what the family does not give: ambients, extender, sizes, answers.
    Site& site() noexcept { return site_; }

    /// Takes the steps of a script and gives back the script as it went.
    Lines run(const Lines& script);
    /// One line for each thing that outlived the control.
    Lines left();

private:
    std::string take_step(const std::string& step);
    std::string create(const std::string& way);
    std::string answer(const std::string& step, const std::string& argument);
    std::string life_step(const std::string& step, const std::string& argument);
    std::string stored_step(const std::string& step, const std::string& argument);
    std::string placed_step(const std::string& step, const std::string& argument);
    std::string user_step(const std::string& step, const std::string& argument);

    HRESULT init_new(const std::string& door);
    HRESULT load(const std::string& door);
    HRESULT save(const std::string& door);
    std::string quick();
    HRESULT draw(const RECT& bounds);
    HRESULT set_extent(const RECT& size);
    std::string where();
    void click(HWND window, POINT at);
    HWND window();

    Container host_;
    std::unique_ptr<Form> next_form_;
    Site& site_;
    ComPtr<AdviseSink> advises_{new AdviseSink(site_.log())};
    ComPtr<OuterObject> outer_;
    ComPtr<PropertyBag> bag_{new PropertyBag};
    ComPtr<IStream> stream_;
    ComPtr<IStorage> storage_;
    HWND window_ = nullptr; // the control's, for looking at it when the control is gone
};

/// The lines of a text but the empty ones.
Lines lines_of(const std::string& text);

} // namespace vellora::test

/// Takes the steps of a script, a text of lines, and compares how it went, whole.
#define EXPECT_SCRIPT(host, text)                                                                                      \
    do {                                                                                                               \
        const ::vellora::test::Lines script_ = ::vellora::test::lines_of(text);                                        \
        EXPECT_TRUE(::vellora::test::same_lines(script_, (host).run(script_)));                                        \
    } while (false)
