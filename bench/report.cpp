#include "report.h"

#include <cstdio>

namespace vellora::bench {

void Report::heading(const std::string& text, const std::string& ours, const std::string& reference) {
    std::printf("\n%-42s %15s %15s %8s\n", text.c_str(), ours.c_str(), reference.c_str(), "ratio");
}

void Report::compare(const std::string& what, double ours, double reference, const std::string& unit,
                     std::optional<double> largest_ratio) {
    const double ratio = ours / reference;
    std::printf("%-42s %12.3f %-2s %12.3f %-2s %8.3f", what.c_str(), ours, unit.c_str(), reference,
                unit.c_str(), ratio);
    if (largest_ratio)
        verdict(ratio, *largest_ratio);
    std::printf("\n");
    std::fflush(stdout);
}

void Report::figure(const std::string& what, double figure, const std::string& unit) {
    std::printf("%-42s %12.1f %-2s\n", what.c_str(), figure, unit.c_str());
    std::fflush(stdout);
}

void Report::limit(const std::string& what, double figure, const std::string& unit, double most) {
    std::printf("%-42s %12.1f %-2s %24s", what.c_str(), figure, unit.c_str(), "");
    verdict(figure, most);
    std::printf("\n");
    std::fflush(stdout);
}

void Report::verdict(double figure, double bound) {
    const bool met = figure <= bound;
    all_met_ = all_met_ && met;
    std::printf("   at most %g: %s", bound, met ? "met" : "MISSED");
}

} // namespace vellora::bench
