// What the library knows about itself, and the one dialog it shows.
#pragma once

#include <cstdint>
#include <string>

namespace vellora {

/// From the library's version resource.
struct LibraryVersion {
    std::u16string title;
    std::uint16_t major = 0;
    std::uint16_t minor = 0;
    std::uint16_t revision = 0;
};

/// Texts of the about box.
struct AboutTexts {
    std::u16string caption;
    std::u16string title;
    std::u16string version;
};

class Library {
public:
    virtual ~Library() = default;
    virtual LibraryVersion version() const = 0;
    /// Modal over the form; returns when the box is closed.
    virtual void show_about_box(const AboutTexts& texts) = 0;
};

} // namespace vellora
