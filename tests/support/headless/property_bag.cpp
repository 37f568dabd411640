// Reading converts numbers to the type that is asked for, as hosts do; of the rest only Nothing does.
#include "support/headless/property_bag.h"

#include "runtime/checked.h"
#include "runtime/host_error.h"
#include "support/headless/journal.h"

#include <type_traits>

namespace vellora::test {

namespace {

/// Nothing is of every kind, and means what an absent key means.
template <class Type>
constexpr bool is_object = !std::is_arithmetic_v<Type> && !std::is_same_v<Type, std::u16string>;

template <class Type>
SavedValue from_number(double number) {
    if constexpr (std::is_same_v<Type, bool>) {
        return number != 0;
    } else if constexpr (std::is_same_v<Type, std::int16_t>) {
        return to_integer(number);
    } else if constexpr (std::is_same_v<Type, std::int32_t>) {
        return to_long(number);
    } else {
        return static_cast<Type>(number);
    }
}

/// For a default of type Wanted and a saved value of type Saved.
struct Convert {
    template <class Wanted, class Saved>
    SavedValue operator()(const Wanted& wanted, const Saved& saved) const {
        if constexpr (std::is_same_v<Wanted, Saved>) {
            return saved;
        } else if constexpr (std::is_arithmetic_v<Wanted> && std::is_arithmetic_v<Saved>) {
            return from_number<Wanted>(static_cast<double>(saved));
        } else if constexpr (is_object<Wanted> && is_object<Saved>) {
            return saved ? throw HostError(error_number::type_mismatch) : wanted;
        } else {
            throw HostError(error_number::type_mismatch);
        }
    }
};

} // namespace

SavedValue HeadlessPropertyBag::read(std::u16string_view key, const SavedValue& when_absent) {
    const auto found = values_.find(std::u16string(key));
    return found == values_.end() ? when_absent : std::visit(Convert{}, when_absent, found->second);
}

void HeadlessPropertyBag::write(std::u16string_view key, const SavedValue& value) {
    written.push_back(readable(key));
    put(key, value);
}

} // namespace vellora::test
