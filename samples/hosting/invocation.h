// Calling a member of an object by its number, as script hosts do, with the error it raises.
#pragma once

#include "failure.h"
#include "variant.h"

#include <string>
#include <vector>

#include <oaidl.h>

namespace vellora::samples {

/// An object refused a call.
class Refusal : public Failure {
public:
    Refusal(long number, const std::wstring& description) : Failure(description), number_(number) {}
    /// As scripts see it: 380 for an invalid property value.
    long number() const noexcept { return number_; }

private:
    long number_;
};

/// A failure for the person in front of the screen, with its number when a control raised it.
std::wstring sentence(const Failure& failure);

/// What a member returns. `arguments` are in declared order, in a put the new value last; `kind` is one of DISPATCH_...
/// Throws a Refusal.
Variant invoke(IDispatch* object, DISPID id, WORD kind, std::vector<Variant> arguments = {});

} // namespace vellora::samples
