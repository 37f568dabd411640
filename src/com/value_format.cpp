#include "com/value_format.h"

#include "com/bstr.h"
#include "com/guard.h"
#include "com/object_format.h"

namespace vellora::com {

namespace {

void write_text(ByteWriter& out, std::u16string_view text) {
    out.number(static_cast<std::uint32_t>(text.size()));
    out.bytes(text.data(), text.size() * sizeof(char16_t));
}

Variant read_text(ByteReader& in) {
    const auto length = in.number<std::uint32_t>();
    const std::span<const std::byte> units = in.bytes(length, sizeof(char16_t));
    std::u16string text(length, u'\0');
    std::memcpy(text.data(), units.data(), units.size());
    return Variant(text);
}

Variant read_scalar(ByteReader& in, VARTYPE type) {
    const std::span<const std::byte> payload = in.bytes(scalar_size(type));
    Variant value;
    VARIANT* const place = value.put();
    std::memcpy(&V_NONE(place), payload.data(), payload.size());
    V_VT(place) = type;
    return value;
}

bool is_plain(VARTYPE type) {
    return type == VT_EMPTY || type == VT_NULL || scalar_size(type) != 0;
}

} // namespace

bool write_value(ByteWriter& out, const VARIANT& value) {
    const VARTYPE type = V_VT(&value);
    if (type == VT_DISPATCH || type == VT_UNKNOWN)
        return write_object(out, V_UNKNOWN(&value));
    if (type != VT_BSTR && !is_plain(type))
        return false;
    out.number(type);
    if (type == VT_BSTR)
        write_text(out, bstr_view(V_BSTR(&value)));
    else
        out.bytes(&V_NONE(&value), scalar_size(type));
    return true;
}

Variant read_value(ByteReader& in, StoredObjects objects) {
    const auto type = in.number<VARTYPE>();
    if (type == VT_UNKNOWN)
        return read_object(in, objects);
    if (type == VT_BSTR)
        return read_text(in);
    if (!is_plain(type))
        throw ComFailure(STG_E_DOCFILECORRUPT);
    return read_scalar(in, type);
}

} // namespace vellora::com
