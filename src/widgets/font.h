// A font and a picture as objects of the host: held, handed on and compared, never looked into.
#pragma once

#include <memory>

namespace vellora {

/// The host's font object. Shared: whoever sets a property of it changes the look of all its users.
class Font {
public:
    virtual ~Font() = default;
    /// Whether text looks the same in both: name, size and style, as they are now.
    virtual bool looks_like(const Font& other) const = 0;
};
using FontRef = std::shared_ptr<Font>;

/// The host's picture object.
class Picture {
public:
    virtual ~Picture() = default;
};
using PictureRef = std::shared_ptr<Picture>;

} // namespace vellora
