// Settings of the stored format as the headless control reads and writes them, with headless objects in the
// place of the platform's.
#pragma once

#include "host/settings_format.h"
#include "support/headless/property_bag.h"

namespace vellora::test {

inline constexpr std::array<std::byte, 16> standard_font{
    std::byte{0x03}, std::byte{0x52}, std::byte{0xE3}, std::byte{0x0B}, std::byte{0x91}, std::byte{0x8F},
    std::byte{0xCE}, std::byte{0x11}, std::byte{0x9D}, std::byte{0xE3}, std::byte{0x00}, std::byte{0xAA},
    std::byte{0x00}, std::byte{0x4B}, std::byte{0xB8}, std::byte{0x51}};
inline constexpr std::array<std::byte, 16> standard_picture{
    std::byte{0x04}, std::byte{0x52}, std::byte{0xE3}, std::byte{0x0B}, std::byte{0x91}, std::byte{0x8F},
    std::byte{0xCE}, std::byte{0x11}, std::byte{0x9D}, std::byte{0xE3}, std::byte{0x00}, std::byte{0xAA},
    std::byte{0x00}, std::byte{0x4B}, std::byte{0xB8}, std::byte{0x51}};

/// A font's line is as many twips high as its state has bytes; every class but the standard font and picture
/// makes an image list.
SavedValue live_value(const SettingValue& stored);
SettingValue stored_value(const SavedValue& live);

HeadlessPropertyBag bag_of(const Settings& settings);
/// In the order of the keys.
Settings settings_of(const HeadlessPropertyBag& bag);

} // namespace vellora::test
