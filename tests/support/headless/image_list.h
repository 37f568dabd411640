// An image list of the headless host: keys in order, and the ways in which the host's object can be wrong.
#pragma once

#include "widgets/image_list.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace vellora::test {

class HeadlessImageList : public ImageList {
public:
    explicit HeadlessImageList(std::vector<std::u16string> its_keys) : keys(std::move(its_keys)) {}

    bool is_image_list() const override { return right_kind; }
    std::optional<std::int32_t> image(std::u16string_view key) const override {
        if (when_asked) {
            when_asked();
        }
        const auto found = std::find(keys.begin(), keys.end(), key);
        if (found == keys.end()) {
            return std::nullopt;
        }
        return static_cast<std::int32_t>(found - keys.begin());
    }

    std::vector<std::u16string> keys;
    bool right_kind = true;
    /// Code of the host that answers for the object.
    std::function<void()> when_asked;
};

inline std::shared_ptr<HeadlessImageList> make_image_list(std::vector<std::u16string> keys) {
    return std::make_shared<HeadlessImageList>(std::move(keys));
}

} // namespace vellora::test
