// What a property page is about, as a table the control gives.
#pragma once

#include "com/ole.h"

#include <cstdint>
#include <span>

namespace vellora::com {

struct PageClass {
    CLSID class_id;
    const wchar_t* title;
    /// Properties without arguments, in the order they are shown.
    std::span<const DISPID> properties;
    /// Properties whose only argument is a number from 1 to the value of `counted_by`.
    std::span<const DISPID> numbered_properties = {};
    DISPID counted_by = DISPID_UNKNOWN;
    /// The highest number there can be, whatever somebody has typed. A page that counts must say it: with 0 its box stays
    /// empty.
    std::int32_t most_numbers = 0;
    /// What is counted, as the label of the box in which a number is chosen.
    const wchar_t* number_label = L"";
};

} // namespace vellora::com
