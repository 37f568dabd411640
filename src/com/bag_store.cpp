#include "com/bag_store.h"

#include "com/bstr.h"
#include "com/guard.h"

namespace vellora::com {

std::optional<Variant> BagStore::read(std::u16string_view name, VARTYPE hint) {
    const std::wstring text = wide(name);
    std::optional<Variant> value = read_as(text.c_str(), hint);
    if (!value && hint == VT_UNKNOWN)
        value = read_as(text.c_str(), VT_DISPATCH);
    // A value that does not become the wanted type is there all the same.
    if (!value && hint != VT_EMPTY)
        value = read_as(text.c_str(), VT_EMPTY);
    return value;
}

std::optional<Variant> BagStore::read_as(const wchar_t* name, VARTYPE type) {
    // The payload stays null: some bags take what is in it for an object.
    Variant value;
    VARIANT* const place = value.put();
    V_VT(place) = type;
    if (FAILED(bag_->Read(name, place, log_.Get())) || V_VT(place) == VT_EMPTY)
        return std::nullopt;
    return value;
}

void BagStore::write(std::u16string_view name, const VARIANT& value) {
    check(bag_->Write(wide(name).c_str(), const_cast<VARIANT*>(&value)));
}

} // namespace vellora::com
