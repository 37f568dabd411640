// The container plays through its subject by itself.
#pragma once

#include "container_window.h"
#include "hosting/steps.h"
#include "hosting/user.h"

#include <string>

namespace vellora::samples {

/// All of the steps below.
void check_container(ContainerWindow& container, Steps& steps);

void check_design(ContainerWindow& container, const User& user, Steps& steps);
void check_values(ContainerWindow& container, const User& user, Steps& steps);
void check_calls(ContainerWindow& container, Steps& steps);
void check_run(ContainerWindow& container, const User& user, Steps& steps);
void check_files(ContainerWindow& container, Steps& steps);

/// A line of a steps' name or problem is in there.
inline bool says(const std::wstring& text, const wchar_t* part) {
    return text.find(part) != std::wstring::npos;
}

} // namespace vellora::samples
