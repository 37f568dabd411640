// Text comparison without a platform's locale: Latin, Greek and Cyrillic letters lose their case and are
// then ordered by code unit. For builds that run where the host's own comparison does not exist.
#pragma once

#include "runtime/text_compare.h"

namespace vellora {

class PlainTextCompare final : public TextCompare {
public:
    std::u16string sort_key(std::u16string_view text) const override { return fold(text); }
    std::u16string fold(std::u16string_view text) const override;
};

} // namespace vellora
