#include "support/headless/stored_settings.h"

#include "support/headless/fonts.h"
#include "support/headless/image_list.h"

#include <type_traits>

namespace vellora::test {

namespace {

SavedValue live_object(const SettingObject& stored) {
    if (stored.class_id == standard_font) {
        return make_font(static_cast<float>(stored.state.size()));
    }
    if (stored.class_id == standard_picture) {
        return make_picture();
    }
    return stored.is_nothing() ? SavedValue(ImageListRef()) : SavedValue(make_image_list({u"", u"a", u"\u0101"}));
}

struct Store {
    SettingValue operator()(const FontRef& font) const {
        const auto height = static_cast<const HeadlessFont&>(*font).line_height;
        return SettingObject{standard_font, Bytes(static_cast<std::size_t>(height))};
    }
    SettingValue operator()(const PictureRef&) const { return SettingObject{standard_picture, {}}; }
    SettingValue operator()(const ImageListRef& list) const {
        return list ? SettingObject{{std::byte{1}}, {}} : SettingObject{};
    }
    template <class Plain>
    SettingValue operator()(const Plain& value) const {
        return value;
    }
};

} // namespace

SavedValue live_value(const SettingValue& stored) {
    return std::visit(
        [](const auto& value) -> SavedValue {
            if constexpr (std::is_same_v<std::decay_t<decltype(value)>, SettingObject>) {
                return live_object(value);
            } else {
                return value;
            }
        },
        stored);
}

SettingValue stored_value(const SavedValue& live) {
    return std::visit(Store{}, live);
}

HeadlessPropertyBag bag_of(const Settings& settings) {
    HeadlessPropertyBag bag;
    for (const Setting& setting : settings.all()) {
        bag.put(setting.name, live_value(setting.value));
    }
    return bag;
}

Settings settings_of(const HeadlessPropertyBag& bag) {
    Settings settings;
    for (const auto& [key, value] : bag.values()) {
        settings.put(key, stored_value(value));
    }
    return settings;
}

} // namespace vellora::test
