// A property bag made up from the input: what each key holds is one decision after the other.
#include "fuzz/bag_target.h"

#include "fuzz/loaded_control.h"
#include "fuzz/saved_keys.h"
#include "runtime/host_error.h"
#include "support/headless/image_list.h"
#include "support/headless/stored_settings.h"

#include <array>
#include <limits>
#include <set>

namespace vellora::fuzz {

namespace {

using namespace vellora::test;

/// Reading some of its keys fails, as objects of a container fail that do not come to life.
class FailingBag final : public HeadlessPropertyBag {
public:
    SavedValue read(std::u16string_view key, const SavedValue& when_absent) override {
        if (failing.contains(std::u16string(key))) {
            throw HostError(error_number::invalid_property_value);
        }
        return HeadlessPropertyBag::read(key, when_absent);
    }
    std::set<std::u16string> failing;
};

constexpr std::array<std::int32_t, 16> longs{0,
                                             1,
                                             2,
                                             3,
                                             -1,
                                             -2,
                                             49,
                                             50,
                                             51,
                                             255,
                                             32767,
                                             -32768,
                                             65535,
                                             40000,
                                             std::numeric_limits<std::int32_t>::max(),
                                             std::numeric_limits<std::int32_t>::min()};
constexpr std::array<float, 12> singles{0.0F,
                                        -0.0F,
                                        1.0F,
                                        -1.0F,
                                        2.5F,
                                        8.0F,
                                        32767.5F,
                                        1e10F,
                                        -std::numeric_limits<float>::max(),
                                        std::numeric_limits<float>::denorm_min(),
                                        std::numeric_limits<float>::infinity(),
                                        std::numeric_limits<float>::quiet_NaN()};

class Decisions {
public:
    explicit Decisions(const Input& input) : input_(input) {}

    std::uint8_t next() { return at_ < input_.size() ? input_[at_++] : std::uint8_t{0}; }

    SavedValue value() {
        const std::uint8_t kind = next();
        const std::uint8_t detail = next();
        switch (kind % 9) {
        case 0:
            return detail % 2 == 1;
        case 1:
            return static_cast<std::int16_t>(longs[detail % longs.size()]);
        case 2:
            return longs[detail % longs.size()];
        case 3:
            return singles[detail % singles.size()];
        case 4:
            return std::u16string(detail % 100, static_cast<char16_t>(next() * 257));
        case 5:
            return detail == 0 ? FontRef() : make_font(static_cast<float>(detail) * 8);
        case 6:
            return detail == 0 ? PictureRef() : make_picture();
        case 7:
            return image_list(detail);
        default:
            return std::int32_t{detail} << 23;
        }
    }

private:
    static SavedValue image_list(std::uint8_t detail) {
        const SavedValue value = live_value(SettingObject{{static_cast<std::byte>(detail)}, {}});
        if (detail % 8 == 1) {
            static_cast<HeadlessImageList&>(*std::get<ImageListRef>(value)).right_kind = false;
        }
        return value;
    }

    const Input& input_;
    std::size_t at_ = 0;
};

void run(const Input& input) {
    Decisions decisions(input);
    FailingBag bag;
    const Mode mode = decisions.next() % 2 == 0 ? Mode::run : Mode::design;
    for (int entries = decisions.next(); entries > 0; --entries) {
        const std::u16string& key = saved_keys()[decisions.next() % saved_keys().size()];
        bag.put(key, decisions.value());
    }
    for (int failures = decisions.next() / 64; failures > 0; --failures) {
        bag.failing.insert(saved_keys()[decisions.next() % saved_keys().size()]);
    }
    load_and_use(bag, mode, [&] { return decisions.next(); });
}

} // namespace

Target bag_target() {
    return {"bag", run, {}};
}

} // namespace vellora::fuzz
