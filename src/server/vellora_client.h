// One Vellora control: its windows, its behaviour and its public interface, joined to the hosting.
#pragma once

#include "com/control_client.h"
#include "control/control.h"
#include "server/constituent_peers.h"
#include "server/dual.h"
#include "server/event_source.h"
#include "server/host_site.h"
#include "server/own_library.h"
#include "widgets/win32/floating_window.h"
#include "widgets/win32/locale_text_compare.h"

namespace vellora::server {

class VelloraClient final : public com::ControlClient,
                            private win32::SurfaceHost,
                            private win32::FloatingWindowListener {
public:
    explicit VelloraClient(com::ControlHost& host);
    ~VelloraClient() override;

    void* interface_of(REFIID id) override;
    HWND window() override;
    SIZE natural_size() override;
    void on_resized() override;
    void draw(HDC dc, const RECT& bounds) override;
    void on_ambient_changed(DISPID id) override;
    void initialise_new() override;
    void load(com::PropertyStore& store) override;
    void save(com::PropertyStore& store) override;
    void on_deactivated() override;
    void on_ui_activated() override;
    void on_ui_deactivated() override;
    com::KeyRoute translate_key(const MSG& message) override;
    com::Mnemonics mnemonics() override;
    void on_mnemonic(const MSG& message) override;
    std::optional<com::PropertyCategory> category(DISPID property) override;

private:
    bool list_open();

    void surface_wants_height(int pixels) override;
    void surface_focus_entered() override;
    void surface_focus_left() override;
    void surface_list_opened_or_closed() override;
    LRESULT surface_object(HWND window, WPARAM wparam, LPARAM lparam) override;
    void close_requested() override;
    void floating_window_left() override;

    com::ControlHost& host_;
    win32::LocaleTextCompare compare_;
    ConstituentPeers peers_;
    EventSource events_;
    HostSite site_;
    OwnLibrary library_;
    Control control_;
    DualVellora dual_;
    win32::Lifeline lifeline_; // ends first: whoever watches it must not meet what is ending
};

} // namespace vellora::server
