// The table that is printed: a figure of ours, the one it is compared with, their ratio, and the bound it has
// to keep.
#pragma once

#include <optional>
#include <string>

namespace vellora::bench {

class Report {
public:
    void heading(const std::string& text, const std::string& ours, const std::string& reference);
    /// Both in the same unit. The bound is the largest ratio that is allowed.
    void compare(const std::string& what, double ours, double reference, const std::string& unit,
                 std::optional<double> largest_ratio = {});
    /// A figure that has no bound.
    void figure(const std::string& what, double figure, const std::string& unit);
    /// A figure with a bound of its own.
    void limit(const std::string& what, double figure, const std::string& unit, double most);

    bool all_met() const { return all_met_; }

private:
    void verdict(double figure, double bound);

    bool all_met_ = true;
};

} // namespace vellora::bench
