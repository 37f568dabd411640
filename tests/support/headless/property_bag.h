// A container's store of named settings: what was written, in order, and what can be read back.
#pragma once

#include "host/property_bag.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace vellora::test {

class HeadlessPropertyBag : public PropertyBag {
public:
    SavedValue read(std::u16string_view key, const SavedValue& when_absent) override;
    void write(std::u16string_view key, const SavedValue& value) override;

    /// Puts a value in as an earlier save did.
    void put(std::u16string_view key, SavedValue value) { values_[std::u16string(key)] = std::move(value); }
    bool has(std::u16string_view key) const { return values_.count(std::u16string(key)) != 0; }
    const std::map<std::u16string, SavedValue>& values() const { return values_; }
    const SavedValue& at(std::u16string_view key) const { return values_.at(std::u16string(key)); }
    /// The keys written, in order; a key written twice stands there twice.
    std::vector<std::string> written;

private:
    std::map<std::u16string, SavedValue> values_;
};

} // namespace vellora::test
