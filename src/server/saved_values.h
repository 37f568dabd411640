// The behaviour's property bag over whatever the container saves into.
#pragma once

#include "com/property_store.h"
#include "host/property_bag.h"

namespace vellora::server {

class SavedValues final : public PropertyBag {
public:
    explicit SavedValues(com::PropertyStore& store) : store_(store) {}

    SavedValue read(std::u16string_view key, const SavedValue& when_absent) override;
    void write(std::u16string_view key, const SavedValue& value) override;

private:
    com::PropertyStore& store_;
};

} // namespace vellora::server
