#include "widgets/row_table.h"

namespace vellora {

std::uint32_t RowTable::acquire() {
    if (first_free_ == no_slot && used_ == slabs_.size() * slab_rows)
        slabs_.push_back(std::make_unique<Slab>());
    const std::uint32_t slot = first_free_ == no_slot ? used_++ : static_cast<std::uint32_t>(first_free_);
    RowRecord& record = at(slot);
    if (first_free_ != no_slot)
        first_free_ = record.position;
    if (++last_generation_ == 0)
        ++last_generation_;
    record = RowRecord();
    record.generation = last_generation_;
    return slot;
}

void RowTable::release(std::uint32_t slot) noexcept {
    RowRecord& record = at(slot);
    record.generation = 0;
    record.position = first_free_;
    first_free_ = static_cast<std::int32_t>(slot);
}

void RowTable::clear() noexcept {
    std::vector<std::unique_ptr<Slab>>().swap(slabs_);
    used_ = 0;
    first_free_ = no_slot;
}

RowRecord* RowTable::find(std::uint32_t slot, std::uint32_t generation) const {
    if (generation == 0 || slot >= used_)
        return nullptr;
    RowRecord& record = at(slot);
    return record.generation == generation ? &record : nullptr;
}

} // namespace vellora
