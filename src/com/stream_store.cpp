#include "com/stream_store.h"

#include "com/guard.h"

#include <algorithm>

namespace vellora::com {

namespace {

struct Head {
    std::uint32_t magic = 0x5350434F;
    std::uint32_t version = 1;
    std::uint32_t length = 0;
};
constexpr std::uint32_t largest_content = 64 * 1024 * 1024; // pictures included
constexpr std::size_t most_entries = 16 * 1024;

void read_exactly(IStream* stream, void* out, std::size_t size) {
    ULONG read = 0;
    check(stream->Read(out, static_cast<ULONG>(size), &read));
    if (read != size)
        throw ComFailure(STG_E_DOCFILECORRUPT);
}

void write_exactly(IStream* stream, const void* data, std::size_t size) {
    ULONG written = 0;
    check(stream->Write(data, static_cast<ULONG>(size), &written));
    if (written != size)
        throw ComFailure(STG_E_MEDIUMFULL);
}

/// Piece by piece: a length in the stream is only believed as far as bytes come.
Bytes read_content(IStream* stream, std::uint32_t length) {
    constexpr std::size_t piece = 64 * 1024;
    Bytes content;
    while (content.size() < length) {
        const std::size_t at = content.size();
        const std::size_t size = std::min(piece, length - at);
        content.resize(at + size);
        read_exactly(stream, content.data() + at, size);
    }
    return content;
}

Head read_head(IStream* stream) {
    Head head;
    read_exactly(stream, &head, sizeof head);
    if (head.magic != Head{}.magic || head.length > largest_content)
        throw ComFailure(STG_E_DOCFILECORRUPT);
    if (head.version != Head{}.version)
        throw ComFailure(STG_E_OLDFORMAT);
    return head;
}

std::u16string read_name(ByteReader& in) {
    const auto length = in.number<std::uint16_t>();
    const std::span<const std::byte> units = in.bytes(length, sizeof(char16_t));
    std::u16string name(length, u'\0');
    std::memcpy(name.data(), units.data(), units.size());
    return name;
}

} // namespace

void StreamStore::load(IStream* stream) {
    need(stream);
    const Head head = read_head(stream);
    decode(read_content(stream, head.length));
}

void StreamStore::decode(std::span<const std::byte> content) {
    entries_.clear();
    ByteReader in(content);
    while (!in.at_end()) {
        std::u16string name = read_name(in);
        const std::span<const std::byte> value = in.bytes(in.number<std::uint32_t>());
        if (entries_.size() == most_entries)
            throw ComFailure(STG_E_DOCFILECORRUPT);
        entries_.push_back({std::move(name), Bytes(value.begin(), value.end())});
    }
}

void StreamStore::save(IStream* stream) const {
    need(stream);
    const Bytes content = encoded();
    if (content.size() > largest_content)
        throw ComFailure(STG_E_MEDIUMFULL);
    Head head;
    head.length = static_cast<std::uint32_t>(content.size());
    write_exactly(stream, &head, sizeof head);
    write_exactly(stream, content.data(), content.size());
}

std::size_t StreamStore::size() const {
    return sizeof(Head) + encoded().size();
}

Bytes StreamStore::encoded() const {
    ByteWriter out;
    for (const Entry& entry : entries_) {
        out.number(static_cast<std::uint16_t>(entry.name.size()));
        out.bytes(entry.name.data(), entry.name.size() * sizeof(char16_t));
        out.number(static_cast<std::uint32_t>(entry.value.size()));
        out.bytes(entry.value.data(), entry.value.size());
    }
    return out.written();
}

std::optional<Variant> StreamStore::read(std::u16string_view name, VARTYPE) {
    const Entry* const entry = find(name);
    if (!entry)
        return std::nullopt;
    ByteReader in(entry->value);
    return read_value(in, objects_);
}

void StreamStore::write(std::u16string_view name, const VARIANT& value) {
    ByteWriter out;
    if (!write_value(out, value))
        return;
    if (Entry* const entry = find(name))
        entry->value = out.written();
    else
        entries_.push_back({std::u16string(name), out.written()});
}

StreamStore::Entry* StreamStore::find(std::u16string_view name) {
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const Entry& entry) { return entry.name == name; });
    return found == entries_.end() ? nullptr : &*found;
}

} // namespace vellora::com
