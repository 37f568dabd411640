// The control inside the hosting: what a concrete control answers for itself. Everything is called on the
// container's one thread. What it throws ends at the COM boundary.
#pragma once

#include "com/ole.h"
#include "com/property_store.h"

#include <memory>
#include <optional>

namespace vellora::com {

class ControlHost;

/// Who takes a key message: the container, the control's own child window without anybody else asking, or
/// the control, which has dealt with it already.
enum class KeyRoute { container, child, consumed };

struct Mnemonics {
    HACCEL accelerators = nullptr;
    WORD count = 0;
    /// CTRLINFO flags: whether the control eats Return or Escape.
    DWORD flags = 0;
};

/// Standard groups of a property list, by the numbers of the platform.
enum class PropertyCategory : int {
    misc = -2,
    font = -3,
    position = -4,
    appearance = -5,
    behavior = -6,
    data = -7,
    list = -8,
    text = -9,
    scale = -10
};

class ControlClient {
public:
    virtual ~ControlClient() = default;

    /// The address of an interface of its own, as a rule only the dual one, without counting a reference;
    /// null for every other. Its IUnknown must be the controlling one (see Delegating).
    virtual void* interface_of(REFIID id) = 0;

    /// The control's window. It exists from construction to destruction, made as a child of
    /// ControlHost::parking_window(); the hosting moves it, sizes it and shows it.
    virtual HWND window() = 0;
    /// Size in pixels the control would have by itself.
    virtual SIZE natural_size() = 0;
    /// The window has another size, or its first one; ControlHost::size() gives it.
    virtual void on_resized() = 0;
    /// Draws the control's face into `bounds` of `dc`, which need not begin at 0, 0. Used where the window
    /// itself is not on the screen: inactive controls and metafiles.
    virtual void draw(HDC dc, const RECT& bounds) = 0;

    /// An ambient property changed, DISPID_UNKNOWN for any of them (also: the container is known now).
    virtual void on_ambient_changed(DISPID id) = 0;

    /// Exactly one of these two comes first in a control's life. A failed load keeps what was loaded before.
    virtual void initialise_new() = 0;
    virtual void load(PropertyStore& store) = 0;
    virtual void save(PropertyStore& store) = 0;

    /// The control is about to leave its container: its window goes back to the parking window, and what floats
    /// outside of it has to go too. Also comes when the control is about to end.
    virtual void on_deactivated() {}
    virtual void on_ui_activated() = 0;
    virtual void on_ui_deactivated() = 0;
    /// A key message of the UI-active control's windows, before anybody else sees it.
    virtual KeyRoute translate_key(const MSG& message) = 0;
    virtual Mnemonics mnemonics() = 0;
    virtual void on_mnemonic(const MSG& message) = 0;

    /// The group a property is listed in; nothing leaves it to the container.
    virtual std::optional<PropertyCategory> category(DISPID property) = 0;
};

/// Makes the control that belongs into a host.
using ClientFactory = std::unique_ptr<ControlClient> (*)(ControlHost& host);

} // namespace vellora::com
