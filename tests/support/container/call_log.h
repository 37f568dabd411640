// What a control asked of its container, call by call, and the answers a test prescribes.
#pragma once

#include <map>
#include <string>
#include <vector>
#include <windows.h>

namespace vellora::test {

class CallLog {
public:
    /// Records a call and returns the prescribed failure, or S_OK.
    HRESULT enter(const std::string& call, const std::string& details = {});

    /// From now on the call answers `result` instead of doing its work; S_OK lifts that.
    void answer(const std::string& call, HRESULT result);

    const std::vector<std::string>& lines() const noexcept { return lines_; }
    /// The calls so far; the log starts anew.
    std::vector<std::string> take();
    bool contains(const std::string& call) const;

private:
    std::vector<std::string> lines_;
    std::map<std::string, HRESULT> answers_;
};

/// Both sequences below each other with the places where they part marked; empty when they are equal.
std::string difference(const std::vector<std::string>& expected, const std::vector<std::string>& actual);

} // namespace vellora::test
