// The host's image list, from which the column headers take their icons.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

namespace vellora {

/// The object is the host's own: it may run code of the host at every question, and that code may do
/// anything.
class ImageList {
public:
    virtual ~ImageList() = default;

    /// False for an object of another kind.
    virtual bool is_image_list() const = 0;
    /// 0-based place of the image with that key; nothing when there is none or the object does not answer.
    virtual std::optional<std::int32_t> image(std::u16string_view key) const = 0;
};
using ImageListRef = std::shared_ptr<ImageList>;

} // namespace vellora
