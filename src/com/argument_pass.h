// Arguments as they have to be before the platform's own invoke takes them: a by-reference variant, or a
// value, passed to a typed by-reference parameter gets a typed place for the time of the call.
#pragma once

#include "com/member_table.h"
#include "com/variant.h"

#include <cstdint>
#include <vector>

namespace vellora::com {

class ArgumentPass {
public:
    /// `member` may be null: the arguments then pass as they are. Throws the failure of a conversion.
    ArgumentPass(const DISPPARAMS& arguments, const Member* member);

    DISPPARAMS* arguments() noexcept { return &passed_; }
    /// Gives the variants of the caller what the called member wrote.
    void write_back();

private:
    struct Place {
        Variant value;
        std::uint64_t before = 0;
        VARIANT* caller = nullptr;
    };

    std::size_t parameter_index(UINT argument) const noexcept;
    void give_place(VARIANT& argument, VARTYPE type);

    DISPPARAMS passed_;
    std::vector<VARIANT> arguments_; // borrowed values: the caller's, or references to `places_`
    std::vector<Place> places_;
};

} // namespace vellora::com
