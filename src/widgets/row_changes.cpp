#include "widgets/row_changes.h"

#include <new>

namespace vellora {

void RowChanges::start() noexcept {
    noting_ = true;
    noted_.remove_all();
    slots_.clear();
}

void RowChanges::stop() noexcept {
    noting_ = false;
    noted_.clear();
    std::vector<std::uint32_t>().swap(slots_);
}

void RowChanges::note(std::uint32_t slot, std::size_t most) noexcept {
    if (!noting_ || noted_.has(slot))
        return;
    if (slots_.size() >= most)
        return stop();
    try {
        noted_.add(slot);
        slots_.push_back(slot);
    } catch (const std::bad_alloc&) {
        stop();
    }
}

} // namespace vellora
