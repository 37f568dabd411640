// Errors that name the procedure they passed through.
#pragma once

#include "runtime/host_error.h"

#include <string>
#include <string_view>

namespace vellora {

/// Runs `body`; an error of it is raised again with `label` as source, and with the label and a colon before its
/// description.
template <typename Body> auto labelled(std::u16string_view label, Body body) {
    try {
        return body();
    } catch (const HostError& error) {
        const std::u16string description =
            error.description().empty() ? standard_description(error.number()) : error.description();
        throw HostError(error.number(), std::u16string(label),
                        std::u16string(label) + u":" + description);
    }
}

} // namespace vellora
