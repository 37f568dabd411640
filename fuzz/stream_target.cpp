// Bytes as they come from a stream: decoded, encoded again, and loaded into a control.
#include "fuzz/stream_target.h"

#include "fuzz/loaded_control.h"
#include "fuzz/saved_keys.h"
#include "host/settings_format.h"
#include "runtime/host_error.h"
#include "support/headless/failure.h"
#include "support/headless/stored_settings.h"

#include <algorithm>
#include <optional>

namespace vellora::fuzz {

namespace {

Bytes bytes_of(const Input& input) {
    Bytes bytes(input.size());
    std::ranges::transform(input, bytes.begin(), [](std::uint8_t byte) { return static_cast<std::byte>(byte); });
    return bytes;
}

/// Most changes make the length wrong and would end there.
Bytes with_right_length(Bytes bytes) {
    if (bytes.size() >= settings_head_size) {
        const std::size_t length = bytes.size() - settings_head_size;
        for (std::size_t byte = 0; byte < 4; ++byte) {
            bytes[8 + byte] = static_cast<std::byte>(length >> (8 * byte));
        }
    }
    return bytes;
}

std::optional<Settings> decoded(const Bytes& bytes) {
    std::optional<Settings> settings;
    const test::Failure failure = test::failure_of([&] { settings = decode_settings(bytes); });
    require(settings || failure.number == error_number::stored_data_damaged ||
                failure.number == error_number::stored_data_too_new,
            "an error that stored settings do not have");
    return settings;
}

void load_from(const Bytes& bytes) {
    const auto settings = decoded(bytes);
    if (!settings) {
        return;
    }
    const Bytes again = encode_settings(*settings);
    require(encode_settings(decode_settings(again)) == again, "settings change on their way through a stream");
    test::HeadlessPropertyBag bag = test::bag_of(*settings);
    const auto mode = bytes.size() % 2 == 0 ? test::Mode::run : test::Mode::design;
    load_and_use(bag, mode, [] { return std::uint8_t{0}; });
}

void run(const Input& input) {
    const Bytes bytes = bytes_of(input);
    decoded(bytes);
    load_from(with_right_length(bytes));
}

Input word(std::u16string_view key, const SettingValue& value) {
    Settings settings;
    settings.put(key, value);
    const Bytes bytes = encode_settings(settings);
    Input word(bytes.size() - settings_head_size);
    std::ranges::transform(bytes.begin() + settings_head_size, bytes.end(), word.begin(),
                           [](std::byte byte) { return std::to_integer<std::uint8_t>(byte); });
    return word;
}

} // namespace

Target stream_target() {
    Target target{"stream", run, {}};
    for (const std::u16string& key : saved_keys()) {
        for (const SettingValue& value :
             {SettingValue(true), SettingValue(std::int16_t{3}), SettingValue(std::int32_t{1}), SettingValue(2.5F),
              SettingValue(u"text"), SettingValue(SettingObject{}),
              SettingValue(SettingObject{test::standard_font, Bytes(200)}),
              SettingValue(SettingObject{test::standard_picture, {}})}) {
            target.words.push_back(word(key, value));
        }
    }
    return target;
}

} // namespace vellora::fuzz
