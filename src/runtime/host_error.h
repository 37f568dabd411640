// The error a caller of the control sees: a number, a source and a description, as the host's error
// object carries them. Behaviour throws it; the COM edge turns it into an HRESULT and an IErrorInfo.
#pragma once

#include <cstdint>
#include <exception>
#include <string>

namespace vellora {

namespace error_number {
inline constexpr std::int32_t invalid_procedure_call = 5;
inline constexpr std::int32_t overflow = 6;
inline constexpr std::int32_t subscript_out_of_range = 9;
inline constexpr std::int32_t division_by_zero = 11;
inline constexpr std::int32_t type_mismatch = 13;
inline constexpr std::int32_t object_not_set = 91;
inline constexpr std::int32_t invalid_use_of_null = 94;
inline constexpr std::int32_t control_array_element_missing = 340;
inline constexpr std::int32_t invalid_property_value = 380;
inline constexpr std::int32_t invalid_property_array_index = 381;
inline constexpr std::int32_t set_not_supported_at_run_time = 382;
inline constexpr std::int32_t set_not_permitted = 387;
inline constexpr std::int32_t member_not_supported = 438;
/// The list view's own: a row, sub-item or column header that does not exist.
inline constexpr std::int32_t index_out_of_bounds = 35600;
/// Its own too: a key that is not in the collection.
inline constexpr std::int32_t element_not_found = 35601;
/// The control's own object errors: 0x80040000 + 1520 and + 1521.
inline constexpr std::int32_t invalid_column_index = -2147219984;
inline constexpr std::int32_t invalid_columns_value = -2147219983;
/// The platform's own for stored data: 0x80030109 damaged, 0x80030105 kept by a newer version, 0x80030070 full.
inline constexpr std::int32_t stored_data_damaged = -2147286775;
inline constexpr std::int32_t stored_data_too_new = -2147286779;
inline constexpr std::int32_t storage_full = -2147286928;
} // namespace error_number

/// An error for the caller of a public member. An empty description stands for the host's standard text
/// of that number; an empty source for the library's name.
class HostError : public std::exception {
public:
    explicit HostError(std::int32_t number, std::u16string source = {}, std::u16string description = {});

    std::int32_t number() const noexcept { return number_; }
    const std::u16string& source() const noexcept { return source_; }
    const std::u16string& description() const noexcept { return description_; }
    /// Number, description and source in ASCII, for logs and debuggers; what is not ASCII becomes "?".
    const char* what() const noexcept override;

private:
    std::int32_t number_;
    std::u16string source_;
    std::u16string description_;
    std::string rendering_;
};

/// The host's standard text of a run-time error number, or an empty text where it has none.
std::u16string standard_description(std::int32_t number);

} // namespace vellora
