// A property bag in memory: a flat set of named values. Whether a value equals its default is the control's
// own business; the bag keeps what it is given.
#pragma once

#include "support/container/call_log.h"
#include "support/container/own_object.h"
#include "support/container/variant.h"

#include <map>
#include <string>
#include <vector>

#include <oaidl.h>

namespace vellora::test {

class PropertyBag final : public OwnObject<IPropertyBag> {
public:
    PropertyBag();

    void put(const std::wstring& key, Variant value);
    void remove(const std::wstring& key);
    bool has(const std::wstring& key) const;
    /// Empty when absent.
    Variant get(const std::wstring& key) const;
    /// `key = value` for each write and `key` for each read, in order.
    const std::vector<std::string>& written() const noexcept { return written_; }
    const std::vector<std::string>& asked() const noexcept { return asked_; }
    /// Lets the reading or writing of a key fail.
    void fail(const std::wstring& key, HRESULT result);
    /// Also enters every call into the log of a site, which may prescribe an answer.
    void report_to(CallLog& log) { log_ = &log; }

    STDMETHODIMP Read(LPCOLESTR key, VARIANT* value, IErrorLog* log) override;
    STDMETHODIMP Write(LPCOLESTR key, VARIANT* value) override;

private:
    struct IgnoringCase {
        bool operator()(const std::wstring& a, const std::wstring& b) const;
    };
    HRESULT failure_for(const std::wstring& key) const;

    std::map<std::wstring, Variant, IgnoringCase> values_;
    std::map<std::wstring, HRESULT, IgnoringCase> failures_;
    std::vector<std::string> written_;
    std::vector<std::string> asked_;
    CallLog* log_ = nullptr;
};

} // namespace vellora::test
