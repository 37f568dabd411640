// A property store over a stream of the control's own format: a head with the format's version and the
// length of the rest, then name and value, one after the other.
#pragma once

#include "com/ole.h"
#include "com/property_store.h"
#include "com/value_format.h"

#include <string>
#include <utility>
#include <vector>

namespace vellora::com {

/// Holds the encoded values by name; the stream is read and written as a whole.
class StreamStore final : public PropertyStore {
public:
    explicit StreamStore(StoredObjects objects = StoredObjects::any) : objects_(objects) {}

    /// Reads up to the end of the control's part of the stream. Throws what the stream answers, and
    /// STG_E_DOCFILECORRUPT or STG_E_OLDFORMAT for other content; memory grows with what is really there.
    void load(IStream* stream);
    void save(IStream* stream) const;
    /// Bytes that save writes.
    std::size_t size() const;

    std::optional<Variant> read(std::u16string_view name, VARTYPE hint) override;
    void write(std::u16string_view name, const VARIANT& value) override;

private:
    struct Entry {
        std::u16string name;
        Bytes value;
    };

    Bytes encoded() const;
    void decode(std::span<const std::byte> content);
    Entry* find(std::u16string_view name);

    StoredObjects objects_;
    std::vector<Entry> entries_;
};

} // namespace vellora::com
