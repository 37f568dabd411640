#include "support/container/call_log.h"

#include <algorithm>
#include <utility>

namespace vellora::test {
namespace {

using Lines = std::vector<std::string>;

// Length of the longest common subsequence of the tails, for every pair of starts.
std::vector<std::vector<std::size_t>> common_tails(const Lines& a, const Lines& b) {
    std::vector<std::vector<std::size_t>> table(a.size() + 1, std::vector<std::size_t>(b.size() + 1));
    for (std::size_t i = a.size(); i-- > 0;)
        for (std::size_t j = b.size(); j-- > 0;)
            table[i][j] = a[i] == b[j] ? table[i + 1][j + 1] + 1 : std::max(table[i + 1][j], table[i][j + 1]);
    return table;
}

} // namespace

HRESULT CallLog::enter(const std::string& call, const std::string& details) {
    return instead(call, details).value_or(S_OK);
}

std::optional<HRESULT> CallLog::instead(const std::string& call, const std::string& details) {
    const std::string line = call + details;
    lines_.push_back(line);
    if (auto action = actions_.extract(call))
        action.mapped()();
    return prescribed(call, line);
}

std::optional<HRESULT> CallLog::prescribed(const std::string& call, const std::string& line) const {
    const auto whole = answers_.find(line);
    const auto found = whole == answers_.end() ? answers_.find(call) : whole;
    return found == answers_.end() ? std::nullopt : std::optional(found->second);
}

void CallLog::answer(const std::string& call, HRESULT result) {
    if (result == S_OK)
        answers_.erase(call);
    else
        answers_[call] = result;
}

void CallLog::give_nothing(const std::string& call) {
    answers_[call] = S_OK;
}

std::vector<std::string> CallLog::take() {
    return std::exchange(lines_, {});
}

bool CallLog::contains(const std::string& call) const {
    return std::any_of(lines_.begin(), lines_.end(),
                       [&](const std::string& line) { return line.compare(0, call.size(), call) == 0; });
}

std::string difference(const Lines& expected, const Lines& actual) {
    if (expected == actual)
        return {};
    const auto common = common_tails(expected, actual);
    std::string text;
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < expected.size() || j < actual.size()) {
        if (i < expected.size() && j < actual.size() && expected[i] == actual[j]) {
            text += "    " + expected[i] + '\n';
            ++i, ++j;
        } else if (j == actual.size() || (i < expected.size() && common[i + 1][j] >= common[i][j + 1])) {
            text += "  - " + expected[i++] + '\n';
        } else {
            text += "  + " + actual[j++] + '\n';
        }
    }
    return text;
}

} // namespace vellora::test
