// Whoever calls out to an event handler may be gone when the handler returns. A watch on the object's
// lifeline tells.
#pragma once

#include <memory>

namespace vellora::win32 {

/// A member of the object to be watched.
class Lifeline {
public:
    /// Stands on the stack of the function that calls out.
    class Watch {
    public:
        explicit Watch(const Lifeline& line) : token_(line.token_) {}
        bool alive() const noexcept { return !token_.expired(); }

    private:
        std::weak_ptr<const int> token_;
    };

private:
    std::shared_ptr<const int> token_ = std::make_shared<const int>(0);
};

} // namespace vellora::win32
