// Where the container keeps an instance's settings: named values, written when a form is saved and read when it is
// loaded.
#pragma once

#include "widgets/font.h"
#include "widgets/image_list.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace vellora {

using SavedValue =
    std::variant<bool, std::int16_t, std::int32_t, float, std::u16string, FontRef, PictureRef, ImageListRef>;

class PropertyBag {
public:
    virtual ~PropertyBag() = default;

    /// The value saved under the key, converted to the type of `when_absent`; that itself when there is none. Error 13
    /// for a value that does not convert, 6 for one that leaves the type.
    virtual SavedValue read(std::u16string_view key, const SavedValue& when_absent) = 0;
    virtual void write(std::u16string_view key, const SavedValue& value) = 0;
};

} // namespace vellora
