#include "com/object_format.h"

#include "com/guard.h"

#include <cstring>
#include <shlwapi.h>

namespace vellora::com {

namespace {

// The platform's standard font and picture.
constexpr CLSID standard_font = {
    0x0BE35203, 0x8F91, 0x11CE, {0x9D, 0xE3, 0x00, 0xAA, 0x00, 0x4B, 0xB8, 0x51}};
constexpr CLSID standard_picture = {
    0x0BE35204, 0x8F91, 0x11CE, {0x9D, 0xE3, 0x00, 0xAA, 0x00, 0x4B, 0xB8, 0x51}};

// Of the thread: what others load or save at the same time is beside, not within.
thread_local int depth = 0;

/// Objects may hold objects that are kept in the same way. Nobody's go this deep on purpose, and what is saved is to be
/// loaded again.
class Nesting {
public:
    explicit Nesting(HRESULT too_deep) {
        if (depth == deepest)
            throw ComFailure(too_deep);
        ++depth;
    }
    Nesting(const Nesting&) = delete;
    Nesting& operator=(const Nesting&) = delete;
    ~Nesting() { --depth; }

private:
    static constexpr int deepest = 16;
};

ComPtr<IStream> memory_stream(std::span<const std::byte> content) {
    const ComPtr<IStream> stream = adopt(
        SHCreateMemStream(reinterpret_cast<const BYTE*>(content.data()), static_cast<UINT>(content.size())));
    if (!stream)
        throw std::bad_alloc();
    return stream;
}

Bytes content_of(IStream* stream) {
    STATSTG statistics = {};
    check(stream->Stat(&statistics, STATFLAG_NONAME));
    check(stream->Seek({}, STREAM_SEEK_SET, nullptr));
    Bytes content(static_cast<std::size_t>(statistics.cbSize.QuadPart));
    ULONG read = 0;
    check(stream->Read(content.data(), static_cast<ULONG>(content.size()), &read));
    content.resize(read);
    return content;
}

/// One vtable serves both persistence interfaces up to Save.
ComPtr<IPersistStream> persistent(IUnknown* object) {
    ComPtr<IPersistStream> found;
    if (FAILED(object->QueryInterface(IID_PPV_ARGS(&found))))
        object->QueryInterface(IID_IPersistStreamInit, &found);
    return found;
}

/// Nothing for an object that only looks as if it could be saved.
std::optional<Bytes> state_of(IPersistStream* object) {
    const ComPtr<IStream> stream = memory_stream({});
    const HRESULT saved = object->Save(stream.Get(), FALSE);
    if (saved == E_NOTIMPL)
        return std::nullopt;
    check(saved);
    return content_of(stream.Get());
}

/// The standard picture is not always a creatable class.
ComPtr<IUnknown> make_object(const CLSID& class_id) {
    ComPtr<IUnknown> object;
    if (class_id == standard_picture)
        check(OleCreatePictureIndirect(nullptr, IID_IUnknown, TRUE, &object));
    else
        check(CoCreateInstance(class_id, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&object)));
    return object;
}

} // namespace

std::optional<SettingObject> stored_object(IUnknown* object) {
    SettingObject stored;
    if (!object)
        return stored;
    const Nesting level(STG_E_CANTSAVE);
    const ComPtr<IPersistStream> storable = persistent(object);
    CLSID class_id = CLSID_NULL;
    // A class of zeros is none to be made again, and would be read as Nothing.
    if (!storable || FAILED(storable->GetClassID(&class_id)) || class_id == CLSID_NULL)
        return std::nullopt;
    std::optional<Bytes> state = state_of(storable.Get());
    if (!state)
        return std::nullopt;
    static_assert(sizeof class_id == sizeof stored.class_id);
    std::memcpy(stored.class_id.data(), &class_id, sizeof class_id);
    stored.state = std::move(*state);
    return stored;
}

Variant live_object(const SettingObject& stored, StoredObjects objects) {
    if (stored.is_nothing())
        return Variant(static_cast<IUnknown*>(nullptr));
    const Nesting level(STG_E_DOCFILECORRUPT);
    CLSID class_id;
    std::memcpy(&class_id, stored.class_id.data(), sizeof class_id);
    const bool is_standard = class_id == standard_font || class_id == standard_picture;
    if (objects == StoredObjects::standard && !is_standard)
        throw ComFailure(E_ACCESSDENIED);
    const ComPtr<IUnknown> object = make_object(class_id);
    const ComPtr<IPersistStream> storable = persistent(object.Get());
    if (!storable)
        throw ComFailure(STG_E_DOCFILECORRUPT);
    check(storable->Load(memory_stream(stored.state).Get()));
    return Variant(object.Get());
}

} // namespace vellora::com
