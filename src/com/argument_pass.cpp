#include "com/argument_pass.h"

#include "com/guard.h"

#include <algorithm>
#include <cstring>

namespace vellora::com {

namespace {

bool wants_place(const Parameter& parameter) {
    return parameter.by_reference && (parameter.type == VT_BSTR || scalar_size(parameter.type) != 0);
}

bool is_missing(const VARIANT& argument) {
    return V_VT(&argument) == VT_ERROR && V_ERROR(&argument) == DISP_E_PARAMNOTFOUND;
}

std::uint64_t payload_bits(Variant& value) {
    std::uint64_t bits = 0;
    std::memcpy(&bits, value.payload(), sizeof bits);
    return bits;
}

} // namespace

ArgumentPass::ArgumentPass(const DISPPARAMS& arguments, const Member* member) : passed_(arguments) {
    if (!member || arguments.cArgs == 0 ||
        std::none_of(member->parameters.begin(), member->parameters.end(), wants_place))
        return;
    arguments_.assign(arguments.rgvarg, arguments.rgvarg + arguments.cArgs);
    places_.reserve(arguments.cArgs); // references to the places must stay good
    passed_.rgvarg = arguments_.data();
    for (UINT i = 0; i < arguments.cArgs; ++i) {
        const std::size_t index = parameter_index(i);
        if (index >= member->parameters.size())
            continue;
        if (wants_place(member->parameters[index]))
            give_place(arguments_[i], member->parameters[index].type);
    }
}

std::size_t ArgumentPass::parameter_index(UINT argument) const noexcept {
    if (argument >= passed_.cNamedArgs)
        return passed_.cArgs - 1 - argument;
    const DISPID name = passed_.rgdispidNamedArgs[argument];
    return name == DISPID_PROPERTYPUT ? passed_.cArgs - 1 : static_cast<std::size_t>(name);
}

void ArgumentPass::give_place(VARIANT& argument, VARTYPE type) {
    const auto reference = static_cast<VARTYPE>(type | VT_BYREF);
    if (V_VT(&argument) == reference || is_missing(argument))
        return;
    Place& place = places_.emplace_back();
    if (V_VT(&argument) == (VT_VARIANT | VT_BYREF))
        place.caller = const_cast<VARIANT*>(&resolved(argument));
    check(convert(argument, type, place.value));
    place.before = payload_bits(place.value);
    V_VT(&argument) = reference;
    V_BYREF(&argument) = place.value.payload();
}

void ArgumentPass::write_back() {
    for (Place& place : places_) {
        if (!place.caller || payload_bits(place.value) == place.before)
            continue;
        VariantClear(place.caller);
        *place.caller = place.value.release();
    }
}

} // namespace vellora::com
