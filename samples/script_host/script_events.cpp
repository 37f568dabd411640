#include "script_events.h"

#include "hosting/event_type.h"
#include "hosting/failure.h"

#include <utility>
#include <vector>

namespace vellora::samples {

using Microsoft::WRL::ComPtr;

namespace {

/// The arguments of an event as script takes them. Script writes to references to a Variant only, so an argument
/// that refers to a number is lent out as a Variant and written back.
class ScriptArguments {
public:
    explicit ScriptArguments(const DISPPARAMS& event)
        : originals_(event.rgvarg, event.rgvarg + event.cArgs), lent_(event.cArgs), values_(event.cArgs) {
        for (std::size_t i = 0; i < lent_.size(); ++i)
            lend(i);
    }
    ScriptArguments(const ScriptArguments&) = delete;
    ScriptArguments& operator=(const ScriptArguments&) = delete;
    ~ScriptArguments() {
        for (VARIANT& value : values_)
            VariantClear(&value);
    }

    DISPPARAMS parameters() { return {lent_.data(), nullptr, static_cast<UINT>(lent_.size()), 0}; }
    void write_back() {
        for (std::size_t i = 0; i < values_.size(); ++i)
            if (originals_[i].vt & VT_BYREF)
                write_back(originals_[i], values_[i]);
    }

private:
    void lend(std::size_t i) {
        lent_[i] = originals_[i];
        if (!(originals_[i].vt & VT_BYREF) || FAILED(VariantCopyInd(&values_[i], &originals_[i])))
            return;
        lent_[i].vt = VT_BYREF | VT_VARIANT;
        lent_[i].pvarVal = &values_[i];
    }
    /// What does not fit into the control's variable leaves it as it is.
    static void write_back(const VARIANT& original, VARIANT& value) {
        VARIANT fitting{};
        const auto type = static_cast<VARTYPE>(original.vt & ~VT_BYREF);
        if (FAILED(VariantChangeType(&fitting, &value, 0, type)))
            return;
        if (type == VT_I2)
            *original.piVal = fitting.iVal;
        else if (type == VT_I4)
            *original.plVal = fitting.lVal;
        else if (type == VT_R4)
            *original.pfltVal = fitting.fltVal;
        else if (type == VT_BOOL)
            *original.pboolVal = fitting.boolVal;
        VariantClear(&fitting);
    }

    std::vector<VARIANT> originals_, lent_, values_;
};

} // namespace

void ScriptEvents::listen_to(IUnknown* object) {
    const EventType type = event_type_of(object);
    ComPtr<IConnectionPointContainer> points;
    check(object->QueryInterface(IID_PPV_ARGS(&points)), L"Asking the object for its events");
    check(points->FindConnectionPoint(type.id, &point_), L"Finding the object's events");
    names_ = type.names;
    check(point_->Advise(this, &cookie_), L"Listening to the object's events");
}

void ScriptEvents::stop() {
    if (const ComPtr<IConnectionPoint> point = std::move(point_))
        point->Unadvise(cookie_);
}

STDMETHODIMP ScriptEvents::Invoke(DISPID id, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT*, EXCEPINFO*, UINT*) {
    const auto name = names_.find(id);
    if (name == names_.end())
        return DISP_E_MEMBERNOTFOUND;
    try {
        ScriptArguments lent(*arguments);
        DISPPARAMS parameters = lent.parameters();
        engine_->call(prefix_ + name->second, parameters);
        lent.write_back();
        return S_OK;
    } catch (...) {
        return E_FAIL; // exceptions must not reach the control
    }
}

STDMETHODIMP ScriptEvents::GetTypeInfoCount(UINT* count) {
    *count = 0;
    return S_OK;
}

} // namespace vellora::samples
