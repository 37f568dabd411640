// Comparing texts by the rules of the user's locale, as the platform knows them.
#pragma once

#include "runtime/text_compare.h"

namespace vellora::win32 {

class LocaleTextCompare final : public TextCompare {
public:
    std::u16string sort_key(std::u16string_view text) const override;
    std::u16string fold(std::u16string_view text) const override;
};

} // namespace vellora::win32
