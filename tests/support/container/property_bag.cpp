#include "support/container/property_bag.h"

#include "support/container/text.h"

#include <utility>
#include <wchar.h>

namespace vellora::test {

bool PropertyBag::IgnoringCase::operator()(const std::wstring& a, const std::wstring& b) const {
    return _wcsicmp(a.c_str(), b.c_str()) < 0;
}

PropertyBag::PropertyBag() : OwnObject({IID_IPropertyBag}) {}

void PropertyBag::put(const std::wstring& key, Variant value) {
    values_[key] = std::move(value);
}
void PropertyBag::remove(const std::wstring& key) {
    values_.erase(key);
}
bool PropertyBag::has(const std::wstring& key) const {
    return values_.count(key) != 0;
}

Variant PropertyBag::get(const std::wstring& key) const {
    const auto found = values_.find(key);
    return found == values_.end() ? Variant() : found->second;
}

void PropertyBag::fail(const std::wstring& key, HRESULT result) {
    failures_[key] = result;
}

HRESULT PropertyBag::failure_for(const std::wstring& key) const {
    const auto found = failures_.find(key);
    return found == failures_.end() ? S_OK : found->second;
}

STDMETHODIMP PropertyBag::Read(LPCOLESTR key, VARIANT* value, IErrorLog*) {
    asked_.push_back(utf8(key));
    if (const auto answer = log_ ? log_->instead("IPropertyBag::Read") : std::nullopt)
        return *answer;
    if (const HRESULT failure = failure_for(key); FAILED(failure))
        return failure;
    const auto found = values_.find(key);
    if (found == values_.end())
        return E_INVALIDARG;
    // A caller may name the type it wants.
    const VARTYPE wanted = value->vt;
    if (wanted == VT_EMPTY || wanted == found->second.type())
        return VariantCopy(value, found->second.argument());
    VariantInit(value);
    return VariantChangeType(value, found->second.argument(), 0, wanted);
}

STDMETHODIMP PropertyBag::Write(LPCOLESTR key, VARIANT* value) {
    Variant copy(*value);
    written_.push_back(utf8(key) + " = " + copy.describe());
    if (const auto answer = log_ ? log_->instead("IPropertyBag::Write") : std::nullopt)
        return *answer;
    if (const HRESULT failure = failure_for(key); FAILED(failure))
        return failure;
    values_[key] = std::move(copy);
    return S_OK;
}

} // namespace vellora::test
