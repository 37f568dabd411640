// What a user sees on the form, for a program that plays the user: the places of the controls, their texts,
// the open list, the focus. Each is written when it changed.
#pragma once

#include "demo_form.h"
#include "hosting/state_report.h"

#include <string>

namespace vellora::samples {

class ScreenReport {
public:
    explicit ScreenReport(LineFile& file) : states_(file) {}

    /// Writes what is new, as lines `state`, a name, its value. Places are screen pixels: left, top, right,
    /// bottom.
    void update(const DemoForm& form);

private:
    void report_box(const VelloraBox& box);
    void report_focus(const DemoForm& form);
    void report_list();

    StateReport states_;
};

} // namespace vellora::samples
