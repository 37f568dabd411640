#include "support/container/in_place_frame.h"

#include "support/container/form.h"
#include "support/container/own_object.h"

namespace vellora::test {
namespace {

class InPlaceFrame final : public OwnObject<IOleInPlaceFrame> {
public:
    InPlaceFrame(SiteState& state, bool document)
        : OwnObject({IID_IOleInPlaceFrame, IID_IOleInPlaceUIWindow, IID_IOleWindow}), state_(state),
          site_(state.identity), prefix_(document ? "IOleInPlaceUIWindow::" : "IOleInPlaceFrame::"),
          document_(document) {}

    STDMETHODIMP GetWindow(HWND* window) override {
        const HRESULT answer = enter("GetWindow");
        Form* form = state_.form;
        *window = !form ? nullptr : document_ ? form->window() : form->frame();
        return FAILED(answer) ? answer : *window ? S_OK : E_FAIL;
    }
    STDMETHODIMP ContextSensitiveHelp(BOOL) override { return enter("ContextSensitiveHelp"); }
    STDMETHODIMP GetBorder(RECT*) override { return refuse("GetBorder"); }
    STDMETHODIMP RequestBorderSpace(const BORDERWIDTHS*) override { return refuse("RequestBorderSpace"); }
    STDMETHODIMP SetBorderSpace(const BORDERWIDTHS*) override { return enter("SetBorderSpace"); }
    STDMETHODIMP SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR) override {
        const HRESULT answer = enter("SetActiveObject", object ? "(object)" : "(Nothing)");
        // The form lets go of it whatever it answers.
        if ((SUCCEEDED(answer) || !object) && state_.form)
            state_.form->set_active_object(object);
        return answer;
    }
    STDMETHODIMP InsertMenus(HMENU, OLEMENUGROUPWIDTHS*) override { return refuse("InsertMenus"); }
    STDMETHODIMP SetMenu(HMENU, HOLEMENU, HWND) override { return enter("SetMenu"); }
    STDMETHODIMP RemoveMenus(HMENU) override { return enter("RemoveMenus"); }
    STDMETHODIMP SetStatusText(LPCOLESTR) override { return enter("SetStatusText"); }
    STDMETHODIMP EnableModeless(BOOL) override { return enter("EnableModeless"); }
    STDMETHODIMP TranslateAccelerator(MSG*, WORD) override {
        const HRESULT answer = enter("TranslateAccelerator");
        return FAILED(answer) ? answer : S_FALSE;
    }

private:
    HRESULT enter(const char* call, const std::string& details = {}) {
        return state_.log.enter(prefix_ + call, details);
    }
    HRESULT refuse(const char* call) {
        const HRESULT answer = enter(call);
        return FAILED(answer) ? answer : INPLACE_E_NOTOOLSPACE;
    }

    SiteState& state_;
    Microsoft::WRL::ComPtr<IUnknown> site_;
    std::string prefix_;
    bool document_;
};

} // namespace

Microsoft::WRL::ComPtr<IOleInPlaceFrame> make_frame(SiteState& state, bool document) {
    return Microsoft::WRL::ComPtr<IOleInPlaceFrame>(new InPlaceFrame(state, document));
}

} // namespace vellora::test
