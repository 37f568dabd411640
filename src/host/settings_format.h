// Named settings as one run of bytes, for containers that keep a control in a stream, a storage or memory.
// docs/settings-format.md describes it byte by byte.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace vellora {

using Bytes = std::vector<std::byte>;

/// An object as its class and what it saved of itself. A class of zeros is Nothing.
struct SettingObject {
    std::array<std::byte, 16> class_id{};
    Bytes state;

    bool is_nothing() const { return class_id == std::array<std::byte, 16>{}; }
    bool operator==(const SettingObject&) const = default;
};

using SettingValue = std::variant<bool, std::int16_t, std::int32_t, float, std::u16string, SettingObject>;

struct Setting {
    std::u16string name;
    SettingValue value;
};

/// A flat set in the order of writing.
class Settings {
public:
    /// Null when there is none of that very name.
    const SettingValue* find(std::u16string_view name) const;
    /// A name put again keeps its place and takes the later value.
    void put(std::u16string_view name, SettingValue value);
    const std::vector<Setting>& all() const noexcept { return settings_; }

private:
    std::vector<Setting> settings_;
};

inline constexpr std::size_t settings_head_size = 12;

/// Size of the whole that begins with this head of settings_head_size bytes, at most 64 MB. Raises
/// stored_data_damaged for a head of something else, stored_data_too_new for a format that came later.
std::size_t settings_size(std::span<const std::byte> head);

/// Leaves alone what follows the settings, and leaves out values of types that came later. Raises
/// stored_data_damaged, and what settings_size raises; memory grows with what is really there.
Settings decode_settings(std::span<const std::byte> bytes);

/// Raises storage_full for more than 64 MB.
Bytes encode_settings(const Settings& settings);

} // namespace vellora
