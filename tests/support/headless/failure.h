// The error a call ended with, in a form that tests compare and print.
#pragma once

#include "runtime/host_error.h"
#include "support/headless/journal.h"

#include <ostream>
#include <string>

namespace vellora::test {

struct Failure {
    std::int32_t number = 0;
    std::u16string source;
    std::u16string description;
    bool operator==(const Failure&) const = default;
};

inline std::ostream& operator<<(std::ostream& out, const Failure& failure) {
    return out << failure.number << " \"" << readable(failure.source) << "\" \""
               << readable(failure.description) << "\"";
}

/// What `call` raised; `no_failure` when it came back.
inline const Failure no_failure{};

template <class Call>
Failure failure_of(Call call) {
    try {
        call();
    } catch (const HostError& error) {
        return {error.number(), error.source(), error.description()};
    }
    return no_failure;
}

} // namespace vellora::test
