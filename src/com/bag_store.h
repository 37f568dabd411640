// A property store over the container's property bag.
#pragma once

#include "com/ole.h"
#include "com/property_store.h"

namespace vellora::com {

class BagStore final : public PropertyStore {
public:
    BagStore(IPropertyBag* bag, IErrorLog* log) : bag_(bag), log_(log) {}

    std::optional<Variant> read(std::u16string_view name, VARTYPE hint) override;
    void write(std::u16string_view name, const VARIANT& value) override;

private:
    std::optional<Variant> read_as(const wchar_t* name, VARTYPE type);

    ComPtr<IPropertyBag> bag_;
    ComPtr<IErrorLog> log_;
};

} // namespace vellora::com
