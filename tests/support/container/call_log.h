// What a control asked of its container, call by call, and the answers a test prescribes.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>
#include <windows.h>

namespace vellora::test {

class CallLog {
public:
    /// Records a call and returns the prescribed failure, or S_OK.
    HRESULT enter(const std::string& call, const std::string& details = {});

    /// The same for a call that gives something out: what it answers instead of doing its work, if anything.
    std::optional<HRESULT> instead(const std::string& call, const std::string& details = {});

    /// From now on the call answers `result` instead of doing its work; S_OK lifts that. With its details the
    /// call is meant only where it comes with these.
    void answer(const std::string& call, HRESULT result);
    /// From now on the call succeeds and gives nothing out.
    void give_nothing(const std::string& call);

    /// Runs inside the next call of that name, before it does its work.
    void inside(const std::string& call, std::function<void()> action) { actions_[call] = std::move(action); }

    const std::vector<std::string>& lines() const noexcept { return lines_; }
    /// The calls so far; the log starts anew.
    std::vector<std::string> take();
    bool contains(const std::string& call) const;

private:
    std::optional<HRESULT> prescribed(const std::string& call, const std::string& line) const;

    std::vector<std::string> lines_;
    std::map<std::string, HRESULT> answers_;
    std::map<std::string, std::function<void()>> actions_;
};

/// Both sequences below each other with the places where they part marked; empty when they are equal.
std::string difference(const std::vector<std::string>& expected, const std::vector<std::string>& actual);

} // namespace vellora::test
