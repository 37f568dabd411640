// Keeping and handing out the lines of a test's record.
#include "support/headless/journal.h"

#include <cstdio>
#include <utility>

namespace vellora::test {

void Journal::add(Kind kind, std::string line) {
    entries_.push_back({kind, std::move(line)});
}

Lines Journal::take_all() {
    Lines lines;
    for (Entry& entry : entries_) {
        lines.push_back(std::move(entry.line));
    }
    entries_.clear();
    return lines;
}

Lines Journal::take(Kind kind) {
    Lines lines;
    std::vector<Entry> others;
    for (Entry& entry : entries_) {
        if (entry.kind == kind) {
            lines.push_back(std::move(entry.line));
        } else {
            others.push_back(std::move(entry));
        }
    }
    entries_ = std::move(others);
    return lines;
}

std::string readable(std::u16string_view text) {
    std::string out;
    for (char16_t unit : text) {
        if (unit >= 0x20 && unit < 0x7F) {
            out.push_back(static_cast<char>(unit));
            continue;
        }
        char escaped[8];
        std::snprintf(escaped, sizeof escaped, "\\u%04X", static_cast<unsigned>(unit));
        out += escaped;
    }
    return out;
}

std::string readable(double number) {
    char digits[32];
    std::snprintf(digits, sizeof digits, "%.9g", number);
    return digits;
}

} // namespace vellora::test
