// One control of the form, with its label.
#pragma once

#include "hosting/control_factory.h"
#include "hosting/control_site.h"
#include "hosting/event_sink.h"
#include "form_layout.h"
#include "list_contents.h"

#include <string>

namespace vellora::samples {

class VelloraBox {
public:
    /// A control that is not filled yet. Throws a Failure when there is none to be had.
    VelloraBox(const ControlFactory& factory, const ControlSite::Surroundings& surroundings,
               const BoxDefinition& definition);
    VelloraBox(const VelloraBox&) = delete;
    VelloraBox& operator=(const VelloraBox&) = delete;
    ~VelloraBox();

    const std::wstring& name() const noexcept { return name_; }
    _Vellora& control() const noexcept { return *control_.Get(); }
    HWND label() const noexcept { return label_; }
    /// The control's own window.
    HWND window() const;
    std::wstring text() const;

    void fill(const ListData& data) { definition_.fill(control(), data); }
    void listen(EventSink::Handler handler);
    /// `list_width` is the width of an open wide list; pixels.
    void move(const FormLayout::Cell& cell, int list_width);

private:
    const BoxDefinition& definition_;
    std::wstring name_;
    HWND label_;
    Microsoft::WRL::ComPtr<_Vellora> control_;
    Microsoft::WRL::ComPtr<ControlSite> site_;
    Microsoft::WRL::ComPtr<EventSink> events_;
};

} // namespace vellora::samples
