// The container's ambient properties, each with an answer for containers that lack it.
#pragma once

#include "com/client_site.h"
#include "com/variant.h"

#include <optional>
#include <string>

namespace vellora::com {

class Ambients {
public:
    explicit Ambients(const ClientSite& site) : site_(site) {}

    /// True without a container that says otherwise: a program is running then.
    bool user_mode() const;
    bool ui_dead() const;
    LCID locale() const;
    /// Empty when the container gives no name.
    std::u16string display_name() const;
    /// A font of the control's own that looks like the container's, else like the system's messages.
    ComPtr<IFontDisp> font() const;

private:
    std::optional<Variant> get(DISPID id) const;
    bool flag(DISPID id, bool otherwise) const;

    const ClientSite& site_;
};

} // namespace vellora::com
