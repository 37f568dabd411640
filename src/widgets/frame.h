// The frame of the drop-down with what it carries: border lines and the two labels of the resize grip.
#pragma once

#include "widgets/widget.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace vellora {

class Frame : public Widget {
public:
    virtual OleColor back_color() const = 0;
    virtual void set_back_color(OleColor color) = 0;
    /// Free text that the owner keeps with the frame.
    virtual std::u16string tag() const = 0;
    virtual void set_tag(std::u16string_view tag) = 0;
};

/// A line inside the frame, from one point to another, in twips.
class Line {
public:
    struct Ends {
        float x1 = 0;
        float y1 = 0;
        float x2 = 0;
        float y2 = 0;
    };
    virtual ~Line() = default;
    virtual Ends ends() const = 0;
    virtual void set_ends(const Ends& ends) = 0;
};

/// Standard pointer numbers of a label.
namespace mouse_pointer {
inline constexpr std::int32_t standard = 0;
inline constexpr std::int32_t size_north_south = 7;
inline constexpr std::int32_t size_northwest_southeast = 8;
inline constexpr std::int32_t size_west_east = 9;
} // namespace mouse_pointer

class LabelListener {
public:
    /// Button 1 left, 2 right, 4 middle.
    virtual void label_pressed(std::int16_t button) = 0;
    virtual void label_mouse_moved() = 0;
    virtual void label_released() = 0;

protected:
    ~LabelListener() = default;
};

/// A text without background, as large as its caption in its font.
class Label {
public:
    virtual ~Label() = default;
    virtual void listen(LabelListener* listener) = 0;
    virtual void set_caption(std::u16string_view caption) = 0;
    virtual void set_font(std::u16string_view face, float points) = 0;
    virtual void set_fore_color(OleColor color) = 0;
    /// Twips; left and top are relative to the frame.
    virtual float width() const = 0;
    virtual float height() const = 0;
    virtual void move(float left, float top) = 0;
    virtual std::int32_t pointer() const = 0;
    virtual void set_pointer(std::int32_t pointer) = 0;
};

} // namespace vellora
