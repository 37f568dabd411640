// What all samples have in common: they are programs that show their subject until their window is closed, or,
// started with --check, play through it by themselves.
#pragma once

#include "steps.h"

#include <functional>
#include <string>
#include <vector>
#include <windows.h>

namespace vellora::samples {

/// `arguments` are those of the command line without --check. `check` is null when there is a person to show
/// the subject to.
using Subject = std::function<void(const std::vector<std::wstring>& arguments, Steps* check)>;

/// Runs a sample; what wWinMain returns. `title` heads the message when something goes wrong.
int run_sample(const wchar_t* title, const Subject& subject);

/// Whether a message of the queue was used up by a form or one of its controls.
using Taker = std::function<bool(MSG& message)>;

/// The message loop of a program: until somebody posts WM_QUIT.
void run_messages(const Taker& takes);
/// Handles what is in the queue, as the message loop would.
void settle(const Taker& takes);

} // namespace vellora::samples
