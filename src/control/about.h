// What the control says about its library.
#pragma once

#include "host/library.h"

#include <string>

namespace vellora {

class About {
public:
    explicit About(Library& library);

    /// "Title v1.02 Build 0037": minor number with two digits, revision with four.
    std::u16string Version() const;
    /// Shows the about box, which gives the numbers without padding, and returns when it is closed.
    void ShowAboutBox();

private:
    Library& library_;
};

} // namespace vellora
