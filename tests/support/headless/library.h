// A library of any version, whose about box is written down instead of shown.
#pragma once

#include "host/library.h"

#include <vector>

namespace vellora::test {

class HeadlessLibrary : public Library {
public:
    LibraryVersion version() const override { return current; }
    void show_about_box(const AboutTexts& texts) override { shown.push_back(texts); }

    LibraryVersion current{u"VelloraCTL", 1, 2, 37};
    std::vector<AboutTexts> shown;
};

} // namespace vellora::test
