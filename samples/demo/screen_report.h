// What a user sees on the form, for a program that plays the user: the places of the controls, their texts,
// the open list, the focus. Each is written when it changed.
#pragma once

#include "demo_form.h"
#include "line_file.h"

#include <map>
#include <string>

namespace vellora::samples {

class ScreenReport {
public:
    explicit ScreenReport(LineFile& file) : file_(file) {}

    /// Writes what is new, as lines `state`, a name, its value. Places are screen pixels: left, top, right,
    /// bottom.
    void update(const DemoForm& form);

private:
    void report(const std::wstring& name, const std::wstring& value);
    void report_box(const VelloraBox& box);
    void report_focus(const DemoForm& form);
    void report_list();

    LineFile& file_;
    std::map<std::wstring, std::wstring> reported_;
};

} // namespace vellora::samples
