#include "host/settings_format.h"

#include "runtime/host_error.h"

#include <algorithm>
#include <bit>
#include <optional>

namespace vellora {

namespace {

constexpr std::array magic{std::byte{'O'}, std::byte{'C'}, std::byte{'P'}, std::byte{'S'}};
// A reader of the same major version finds its way through every minor one.
constexpr std::uint16_t major_version = 1;
constexpr std::uint16_t minor_version = 0;
constexpr std::size_t largest_content = 64 * 1024 * 1024; // pictures included
constexpr std::size_t most_settings = 4096;

enum class Type : std::uint16_t { int16 = 2, int32 = 3, single = 4, text = 8, boolean = 11, object = 13 };

[[noreturn]] void raise_damaged() {
    throw HostError(error_number::stored_data_damaged, {}, u"The saved settings are damaged");
}

class Reader {
public:
    explicit Reader(std::span<const std::byte> bytes) : left_(bytes) {}

    bool at_end() const noexcept { return left_.empty(); }

    std::span<const std::byte> bytes(std::size_t size) {
        if (size > left_.size()) {
            raise_damaged();
        }
        const std::span<const std::byte> taken = left_.first(size);
        left_ = left_.subspan(size);
        return taken;
    }

    template <class Number>
    Number number() {
        Number value = 0;
        int shift = 0;
        for (const std::byte byte : bytes(sizeof(Number))) {
            value = static_cast<Number>(value | (std::to_integer<Number>(byte) << shift));
            shift += 8;
        }
        return value;
    }

    std::u16string text(std::size_t units) {
        Reader in(bytes(units * sizeof(char16_t)));
        std::u16string text(units, u'\0');
        for (char16_t& unit : text) {
            unit = in.number<std::uint16_t>();
        }
        return text;
    }

    std::span<const std::byte> rest() { return bytes(left_.size()); }

private:
    std::span<const std::byte> left_;
};

std::u16string whole_text(Reader& in) {
    const std::span<const std::byte> units = in.rest();
    if (units.size() % sizeof(char16_t) != 0) {
        raise_damaged();
    }
    return Reader(units).text(units.size() / sizeof(char16_t));
}

SettingObject object(Reader& in) {
    SettingObject object;
    std::ranges::copy(in.bytes(object.class_id.size()), object.class_id.begin());
    const std::span<const std::byte> state = in.rest();
    object.state.assign(state.begin(), state.end());
    return object;
}

/// Nothing for a type that came later.
std::optional<SettingValue> decode_value(Type type, Reader in) {
    SettingValue value;
    switch (type) {
    case Type::boolean:
        value = in.number<std::uint8_t>() != 0;
        break;
    case Type::int16:
        value = static_cast<std::int16_t>(in.number<std::uint16_t>());
        break;
    case Type::int32:
        value = static_cast<std::int32_t>(in.number<std::uint32_t>());
        break;
    case Type::single:
        value = std::bit_cast<float>(in.number<std::uint32_t>());
        break;
    case Type::text:
        value = whole_text(in);
        break;
    case Type::object:
        value = object(in);
        break;
    default:
        return std::nullopt;
    }
    if (!in.at_end()) {
        raise_damaged();
    }
    return value;
}

class Writer {
public:
    const Bytes& written() const noexcept { return written_; }

    void bytes(std::span<const std::byte> bytes) { written_.insert(written_.end(), bytes.begin(), bytes.end()); }
    template <class Number>
    void number(Number value) {
        for (std::size_t byte = 0; byte < sizeof value; ++byte) {
            written_.push_back(static_cast<std::byte>(value >> (8 * byte)));
        }
    }
    void text(std::u16string_view text) {
        for (const char16_t unit : text) {
            number(static_cast<std::uint16_t>(unit));
        }
    }

    void operator()(bool value) {
        head(Type::boolean, 1);
        number(std::uint8_t{value});
    }
    void operator()(std::int16_t value) {
        head(Type::int16, sizeof value);
        number(static_cast<std::uint16_t>(value));
    }
    void operator()(std::int32_t value) {
        head(Type::int32, sizeof value);
        number(static_cast<std::uint32_t>(value));
    }
    void operator()(float value) {
        head(Type::single, sizeof value);
        number(std::bit_cast<std::uint32_t>(value));
    }
    void operator()(const std::u16string& value) {
        head(Type::text, value.size() * sizeof(char16_t));
        text(value);
    }
    void operator()(const SettingObject& value) {
        head(Type::object, value.class_id.size() + value.state.size());
        bytes(value.class_id);
        bytes(value.state);
    }

private:
    void head(Type type, std::size_t size) {
        number(static_cast<std::uint16_t>(type));
        number(static_cast<std::uint32_t>(size));
    }

    Bytes written_;
};

} // namespace

const SettingValue* Settings::find(std::u16string_view name) const {
    const auto found = std::ranges::find(settings_, name, &Setting::name);
    return found == settings_.end() ? nullptr : &found->value;
}

void Settings::put(std::u16string_view name, SettingValue value) {
    const auto found = std::ranges::find(settings_, name, &Setting::name);
    if (found == settings_.end()) {
        settings_.push_back({std::u16string(name), std::move(value)});
    } else {
        found->value = std::move(value);
    }
}

std::size_t settings_size(std::span<const std::byte> head) {
    Reader in(head);
    if (!std::ranges::equal(in.bytes(magic.size()), magic)) {
        raise_damaged();
    }
    const auto major = in.number<std::uint16_t>();
    in.number<std::uint16_t>(); // whatever the minor version added is skipped
    const auto length = in.number<std::uint32_t>();
    if (major > major_version) {
        throw HostError(error_number::stored_data_too_new, {}, u"The settings were saved by a newer version");
    }
    if (major == 0 || length > largest_content) {
        raise_damaged();
    }
    return settings_head_size + length;
}

Settings decode_settings(std::span<const std::byte> bytes) {
    Reader whole(bytes);
    const std::size_t size = settings_size(bytes);
    whole.bytes(settings_head_size);
    Reader in(whole.bytes(size - settings_head_size));
    Settings settings;
    for (std::size_t read = 0; !in.at_end(); ++read) {
        // Also of a name that comes again: each of them is looked for among all the others.
        if (read == most_settings) {
            raise_damaged();
        }
        const std::u16string name = in.text(in.number<std::uint16_t>());
        const auto type = static_cast<Type>(in.number<std::uint16_t>());
        const Reader content(in.bytes(in.number<std::uint32_t>()));
        if (auto value = decode_value(type, content)) {
            settings.put(name, std::move(*value));
        }
    }
    return settings;
}

Bytes encode_settings(const Settings& settings) {
    Writer content;
    for (const Setting& setting : settings.all()) {
        content.number(static_cast<std::uint16_t>(setting.name.size()));
        content.text(setting.name);
        std::visit(content, setting.value);
    }
    if (content.written().size() > largest_content) {
        throw HostError(error_number::storage_full);
    }
    Writer whole;
    whole.bytes(magic);
    whole.number(major_version);
    whole.number(minor_version);
    whole.number(static_cast<std::uint32_t>(content.written().size()));
    whole.bytes(content.written());
    return whole.written();
}

} // namespace vellora
