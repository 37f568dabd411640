// Counting what keeps the library in memory.
#pragma once

namespace vellora::com {

/// While one of these lives, the library must stay loaded. A member of everything handed to callers.
class LiveObject {
public:
    LiveObject() noexcept;
    LiveObject(const LiveObject&) noexcept : LiveObject() {}
    LiveObject& operator=(const LiveObject&) = default;
    ~LiveObject();
};

/// Keeps the library loaded without an object, or gives that up; who gives up what nobody has takes nothing away.
void lock_library(bool lock) noexcept;

bool library_in_use() noexcept;

} // namespace vellora::com
