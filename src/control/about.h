// What the control tells of its library: a line for programs, a box for people.
#pragma once

#include "host/library.h"

#include <string>

namespace vellora {

class About {
public:
    explicit About(Library& library) : library_(library) {}

    /// "Title v1.02 Build 0037": the minor number with two digits at least, the revision with four.
    std::u16string Version() const;
    /// The box gives the same numbers without padding. Comes back when it is closed.
    void ShowAboutBox();

private:
    Library& library_;
};

} // namespace vellora
