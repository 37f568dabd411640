// Fonts and pictures of the headless host, and the text measures that go with them.
#pragma once

#include "widgets/font.h"

#include <memory>

namespace vellora::test {

/// A font is as good as the height of its line, in twips.
class HeadlessFont : public Font {
public:
    explicit HeadlessFont(float height) : line_height(height) {}
    bool looks_like(const Font& other) const override {
        return line_height == static_cast<const HeadlessFont&>(other).line_height;
    }
    float line_height;
};

class HeadlessPicture : public Picture {};

inline FontRef make_font(float line_height) {
    return std::make_shared<HeadlessFont>(line_height);
}
inline PictureRef make_picture() {
    return std::make_shared<HeadlessPicture>();
}

} // namespace vellora::test
