// Texts packed into the arrays that AddItem and List take.
#pragma once

#include "text_rows.h"

#include <windows.h>

#include <oleauto.h>

namespace vellora::samples {

/// A VARIANT that holds an array of texts and frees it.
class TextArray {
public:
    /// One dimension: the cells of one row, for AddItem.
    explicit TextArray(const TextRow& row);
    /// Two dimensions, rows first: a whole table, for List with TextCol -3.
    explicit TextArray(const TextRows& rows);
    TextArray(const TextArray&) = delete;
    TextArray& operator=(const TextArray&) = delete;
    ~TextArray() { VariantClear(&value_); }

    /// To pass by value; the array stays this object's.
    const VARIANT& get() const noexcept { return value_; }

private:
    void adopt(SAFEARRAY* array);

    VARIANT value_{};
};

} // namespace vellora::samples
