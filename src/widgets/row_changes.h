// Which rows were added, removed or rewritten since something was made of all of them.
#pragma once

#include "widgets/slot_set.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vellora {

/// Notes slots, each once, until there are more than were allowed or memory is short: then it stops, and what
/// was made of the rows has to be made anew.
class RowChanges {
public:
    bool noting() const { return noting_; }
    /// From now on, none so far.
    void start() noexcept;
    void stop() noexcept;
    void note(std::uint32_t slot, std::size_t most) noexcept;

    bool has(std::uint32_t slot) const { return noted_.has(slot); }
    /// The slots in no particular order. Some may be free by now, or hold another row.
    const std::vector<std::uint32_t>& slots() const { return slots_; }

private:
    bool noting_ = false;
    SlotSet noted_;
    std::vector<std::uint32_t> slots_;
};

} // namespace vellora
