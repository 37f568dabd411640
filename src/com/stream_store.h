// A property store over the control's own format, which lies in a stream or in memory.
#pragma once

#include "com/object_format.h"
#include "com/ole.h"
#include "com/property_store.h"

namespace vellora::com {

/// Read and written as a whole.
class StreamStore final : public PropertyStore {
public:
    explicit StreamStore(StoredObjects objects = StoredObjects::any) : objects_(objects) {}

    /// Reads up to the end of the control's part of the stream. Throws what the stream answers, and
    /// what decode_settings raises; memory grows with what is really there.
    void load(IStream* stream);
    void load(std::span<const std::byte> memory) { settings_ = decode_settings(memory); }
    Bytes content() const { return encode_settings(settings_); }

    /// Brings an object to life only where one is wanted.
    std::optional<Variant> read(std::u16string_view name, VARTYPE hint) override;
    /// Leaves out what has no stored form: arrays, and objects that cannot save themselves.
    void write(std::u16string_view name, const VARIANT& value) override;

private:
    StoredObjects objects_;
    Settings settings_;
};

/// All of it, or STG_E_MEDIUMFULL.
void write_exactly(IStream* stream, std::span<const std::byte> content);

} // namespace vellora::com
