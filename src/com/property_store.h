// Where the control's settings are kept between two lives: a property bag, a stream or a storage of the
// container. To the control they are all the same flat set of named values.
#pragma once

#include "com/variant.h"

#include <optional>
#include <string_view>

namespace vellora::com {

class PropertyStore {
public:
    /// Nothing when the name is absent. `hint` is the type wanted, VT_EMPTY for any: the store converts where
    /// it can, but may also give a value as it was kept. VT_UNKNOWN asks for an object of either kind.
    virtual std::optional<Variant> read(std::u16string_view name, VARTYPE hint) = 0;
    /// Keeps a value; a name written again keeps the later one.
    virtual void write(std::u16string_view name, const VARIANT& value) = 0;

protected:
    ~PropertyStore() = default;
};

} // namespace vellora::com
