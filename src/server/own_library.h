// This library as its version resource describes it, and its about box over the control's form.
#pragma once

#include "host/library.h"

namespace vellora::com {
class ControlHost;
}

namespace vellora::server {

class OwnLibrary final : public Library {
public:
    explicit OwnLibrary(const com::ControlHost& host) : host_(host) {}

    LibraryVersion version() const override;
    void show_about_box(const AboutTexts& texts) override;

private:
    const com::ControlHost& host_;
};

} // namespace vellora::server
