// Flags that have a value for the length of a scope, however it is left.
#pragma once

namespace vellora {

/// Another value for the length of the scope, the old one afterwards.
class ChangedFlag {
public:
    ChangedFlag(bool& flag, bool value) : flag_(flag), before_(flag) { flag_ = value; }
    ~ChangedFlag() { flag_ = before_; }
    ChangedFlag(const ChangedFlag&) = delete;
    ChangedFlag& operator=(const ChangedFlag&) = delete;

private:
    bool& flag_;
    bool before_;
};

/// Lowered at the end of the scope.
class LoweredFlag {
public:
    explicit LoweredFlag(bool& flag) : flag_(flag) {}
    ~LoweredFlag() { flag_ = false; }
    LoweredFlag(const LoweredFlag&) = delete;
    LoweredFlag& operator=(const LoweredFlag&) = delete;

private:
    bool& flag_;
};

/// Up for the length of the scope.
class RaisedFlag {
public:
    explicit RaisedFlag(bool& flag) : lowered_(flag) { flag = true; }

private:
    LoweredFlag lowered_;
};

} // namespace vellora
