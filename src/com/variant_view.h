// A caller's VARIANT as the behaviour reads it, without copying its texts.
#pragma once

#include "com/ole.h"
#include "runtime/variant.h"

namespace vellora::com {

/// Looks through by-reference variants, and through objects to their default property. An array is locked
/// while this lives, so that a handler cannot resize it away. The variant has to outlive the view.
class VariantView final : public VariantArgument {
public:
    explicit VariantView(const VARIANT& value);
    VariantView(const VariantView&) = delete;
    VariantView& operator=(const VariantView&) = delete;
    ~VariantView() override;

    bool is_array() const override { return is_array_; }
    std::int32_t lower_bound(int dimension) const override;
    std::int32_t upper_bound(int dimension) const override;

    std::u16string_view text(std::u16string& scratch) const override;
    std::u16string_view text_at(std::int32_t index, std::u16string& scratch) const override;
    std::u16string_view text_at(std::int32_t first, std::int32_t second,
                                std::u16string& scratch) const override;
    std::int16_t integer_at(std::int32_t index) const override;

private:
    void lock_array(const VARIANT& value);
    void prepare_fast_path();
    const void* element(std::int32_t index) const;
    const void* element_by_indices(LONG* indices, UINT count) const;
    std::u16string_view element_text(const void* element, std::u16string& scratch) const;
    VARIANT element_variant(const void* element) const;

    const VARIANT& value_;
    bool is_array_ = false;
    SAFEARRAY* array_ = nullptr; // null for an array that was never given bounds
    VARTYPE element_type_ = VT_EMPTY;
    // A one-dimensional array is read without asking the platform for every element.
    const char* first_element_ = nullptr;
    std::int64_t first_index_ = 0;
    std::int64_t count_ = 0;
};

} // namespace vellora::com
