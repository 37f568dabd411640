// Runs a target on ever new inputs: those that reach new places are kept and changed further. Any fault ends the
// program, with the input in a file and the seed on the screen.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace vellora::fuzz {

using Input = std::vector<std::uint8_t>;

struct Target {
    std::string name;
    void (*run)(const Input& input);
    /// Pieces that changed inputs often contain.
    std::vector<Input> words;
};

struct Options {
    std::uint32_t seed = 1;
    int seconds = 30;
    /// Folders with inputs to start from.
    std::vector<std::string> corpora;
    /// Where the inputs that reached new places are left at the end; empty for nowhere.
    std::string keep;
    /// Where a failing input is left.
    std::string failures = ".";
};

/// Runs for as long as the options say.
void fuzz(const Target& target, const Options& options);

/// Runs the target on one input from a file, to look at a failure.
void replay(const Target& target, const std::string& file);

/// Ends the program as a fault of the target when `holds` is false.
void require(bool holds, const char* what);

} // namespace vellora::fuzz
