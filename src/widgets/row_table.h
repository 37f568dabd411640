// The records of all rows, each in a slot that it keeps for life. Records stand in slabs, so that they never
// move and none has to be copied when the table grows.
#pragma once

#include "widgets/packed_texts.h"

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

namespace vellora {

struct RowRecord {
    PackedTexts texts{1};
    PackedTexts tool_tips;
    std::uint32_t generation = 0; // 0: the slot is free
    std::int32_t position = 0;    // where the row stood when last seen; of a free slot, the next free one
    std::int32_t tag = 0;
    bool has_tag = false;
    bool checked = false;
};

class RowTable {
public:
    static constexpr std::uint32_t slab_rows = 256;

    /// A fresh record with a generation that no earlier row had. Throws std::bad_alloc, changing nothing.
    std::uint32_t acquire();
    void release(std::uint32_t slot) noexcept;
    void clear() noexcept;

    RowRecord& at(std::uint32_t slot) const { return slabs_[slot / slab_rows]->records[slot % slab_rows]; }
    /// Of a slot that was handed out since the last clear.
    bool in_use(std::uint32_t slot) const { return at(slot).generation != 0; }
    /// Null when the slot holds another row or none.
    RowRecord* find(std::uint32_t slot, std::uint32_t generation) const;

    /// Notes the store's revision at which a row's texts changed; kept per slab.
    void stamp(std::uint32_t slot, std::uint64_t revision) { slabs_[slot / slab_rows]->revision = revision; }
    /// Calls visit(slot, record) for every row of the slabs stamped after `since`.
    template <class Visit>
    void visit_stamped(std::uint64_t since, const Visit& visit) const;

private:
    struct Slab {
        std::array<RowRecord, slab_rows> records;
        std::uint64_t revision = 0;
    };
    static constexpr std::int32_t no_slot = -1;

    std::vector<std::unique_ptr<Slab>> slabs_;
    std::uint32_t used_ = 0; // slots handed out at least once since the last clear
    std::int32_t first_free_ = no_slot;
    std::uint32_t last_generation_ = 0;
};

template <class Visit>
void RowTable::visit_stamped(std::uint64_t since, const Visit& visit) const {
    for (std::uint32_t slab = 0; slab < slabs_.size(); ++slab) {
        if (slabs_[slab]->revision <= since)
            continue;
        for (std::uint32_t i = 0; i < slab_rows; ++i)
            if (slabs_[slab]->records[i].generation != 0)
                visit(slab * slab_rows + i, slabs_[slab]->records[i]);
    }
}

} // namespace vellora
