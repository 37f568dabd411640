// What the library says of itself, and the one dialog it shows.
#pragma once

#include <cstdint>
#include <string>

namespace vellora {

/// As the library's version resource has it.
struct LibraryVersion {
    std::u16string title;
    std::uint16_t major = 0;
    std::uint16_t minor = 0;
    std::uint16_t revision = 0;
};

struct AboutTexts {
    std::u16string caption;
    std::u16string title;
    std::u16string version;
};

class Library {
public:
    virtual ~Library() = default;

    virtual LibraryVersion version() const = 0;
    /// Modal over the form of the control; comes back when the user has closed the box. Anything may have
    /// happened to the control by then.
    virtual void show_about_box(const AboutTexts& texts) = 0;
};

} // namespace vellora
