// What a user sees in the container, for a program that plays the user: where the parts are, what they say.
#pragma once

#include "container_window.h"
#include "hosting/state_report.h"

namespace vellora::samples {

class ContainerReport {
public:
    explicit ContainerReport(LineFile& file) : states_(file) {}

    /// Writes what is new. Places are screen pixels: left, top, right, bottom.
    void update(ContainerWindow& container);

private:
    void report_controls(ContainerWindow& container);
    void report_list();

    StateReport states_;
};

} // namespace vellora::samples
