#include "com/stream_store.h"

#include "com/bstr.h"
#include "com/guard.h"
#include "runtime/host_error.h"

#include <algorithm>
#include <type_traits>

namespace vellora::com {

namespace {

void read_exactly(IStream* stream, std::span<std::byte> out) {
    ULONG read = 0;
    check(stream->Read(out.data(), static_cast<ULONG>(out.size()), &read));
    if (read != out.size())
        throw ComFailure(STG_E_DOCFILECORRUPT);
}

/// Piece by piece: a length in the stream is only believed as far as bytes come.
Bytes read_whole(IStream* stream) {
    constexpr std::size_t piece = 64 * 1024;
    Bytes whole(settings_head_size);
    read_exactly(stream, whole);
    const std::size_t size = settings_size(whole);
    while (whole.size() < size) {
        const std::size_t at = whole.size();
        whole.resize(std::min(at + piece, size));
        read_exactly(stream, std::span(whole).subspan(at));
    }
    return whole;
}

std::optional<SettingValue> stored_value(const VARIANT& value) {
    switch (V_VT(&value)) {
    case VT_BOOL:
        return V_BOOL(&value) != VARIANT_FALSE;
    case VT_I2:
        return V_I2(&value);
    case VT_I4:
        return std::int32_t{V_I4(&value)};
    case VT_R4:
        return V_R4(&value);
    case VT_BSTR:
        return std::u16string(bstr_view(V_BSTR(&value)));
    case VT_DISPATCH:
    case VT_UNKNOWN:
        return stored_object(V_UNKNOWN(&value));
    default:
        return std::nullopt;
    }
}

} // namespace

void write_exactly(IStream* stream, std::span<const std::byte> content) {
    ULONG written = 0;
    check(stream->Write(content.data(), static_cast<ULONG>(content.size()), &written));
    if (written != content.size())
        throw ComFailure(STG_E_MEDIUMFULL);
}

void StreamStore::load(IStream* stream) {
    need(stream);
    load(read_whole(stream));
}

std::optional<Variant> StreamStore::read(std::u16string_view name, VARTYPE hint) {
    const SettingValue* const value = settings_.find(name);
    if (!value)
        return std::nullopt;
    return std::visit(
        [&](const auto& held) {
            if constexpr (!std::is_same_v<std::decay_t<decltype(held)>, SettingObject>)
                return Variant(held);
            else if (hint != VT_UNKNOWN && hint != VT_EMPTY)
                throw HostError(error_number::type_mismatch);
            else
                return live_object(held, objects_);
        },
        *value);
}

void StreamStore::write(std::u16string_view name, const VARIANT& value) {
    if (auto stored = stored_value(value))
        settings_.put(name, std::move(*stored));
}

} // namespace vellora::com
