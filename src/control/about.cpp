#include "control/about.h"

#include "runtime/decimal.h"

#include <cstddef>

namespace vellora {

namespace {

std::u16string padded(std::uint16_t number, std::size_t digits) {
    const std::u16string text = to_decimal(number);
    return text.size() < digits ? std::u16string(digits - text.size(), u'0') + text : text;
}

} // namespace

std::u16string About::Version() const {
    const LibraryVersion version = library_.version();
    return version.title + u" v" + to_decimal(version.major) + u"." + padded(version.minor, 2) + u" Build " +
           padded(version.revision, 4);
}

void About::ShowAboutBox() {
    const LibraryVersion version = library_.version();
    const std::u16string numbers =
        to_decimal(version.major) + u"." + to_decimal(version.minor) + u"." + to_decimal(version.revision);
    library_.show_about_box({u"About " + version.title, version.title, u"Version " + numbers});
}

} // namespace vellora
