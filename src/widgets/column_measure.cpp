#include "widgets/column_measure.h"

#include <algorithm>
#include <functional>
#include <string_view>
#include <utility>

namespace vellora {

namespace {

constexpr std::int32_t most_pixels = 0x7FFF;

struct Candidate {
    std::int32_t estimate;
    RowRef row;
    std::u16string_view text;
    bool operator>(const Candidate& other) const { return estimate > other.estimate; }
};

/// The few texts with the greatest estimates above a floor; a heap with the least of them in front.
class Widest {
public:
    Widest(std::size_t kept, std::int32_t floor) : kept_(kept), floor_(floor) {}

    void offer(const Candidate& candidate) {
        if (candidate.estimate <= floor_)
            return;
        if (heap_.size() == kept_) {
            std::pop_heap(heap_.begin(), heap_.end(), std::greater<>());
            heap_.pop_back();
        }
        heap_.push_back(candidate);
        std::push_heap(heap_.begin(), heap_.end(), std::greater<>());
        if (heap_.size() == kept_)
            floor_ = heap_.front().estimate;
    }
    /// The greatest first.
    std::vector<Candidate> take() {
        std::sort_heap(heap_.begin(), heap_.end(), std::greater<>());
        return std::move(heap_);
    }

private:
    std::size_t kept_;
    std::int32_t floor_;
    std::vector<Candidate> heap_;
};

// How far a text may be wider than the sum of its characters: side by side they are never set further apart
// than each takes, kerning only draws pairs together; where they are shaped, some forms are wider than the
// letter alone.
constexpr std::int32_t plain_growth = 1;
constexpr std::int32_t shaped_growth = 2;

// Texts with the greatest sums that are measured. Kerning changes little, so the widest is among the first
// few by sum; a margin in pixels instead would let every row through when all are about as wide, as codes and
// dates are. Shaped texts keep to their sums less closely.
constexpr std::size_t plain_candidates = 16;
constexpr std::size_t shaped_candidates = 256;

} // namespace

std::int32_t ColumnMeasure::widest(std::int32_t column, const TextMeasurer& measurer) {
    const auto index = static_cast<std::size_t>(column);
    if (index >= columns_.size())
        columns_.resize(index + 1);
    Column& known = columns_[index];
    if (known.revision == rows_.revision())
        return known.width;
    if (!still_holds(known, column, measurer))
        known = Column();
    measure(known, column, measurer);
    known.revision = rows_.revision();
    return known.width;
}

std::int32_t ColumnMeasure::exact_width(std::u16string_view text, const TextMeasurer& measurer) {
    const std::u16string_view shown = text.substr(0, characters_.sum(text, measurer).units);
    return std::min(measurer.width(shown), most_pixels);
}

bool ColumnMeasure::still_holds(const Column& known, std::int32_t column, const TextMeasurer& measurer) {
    const std::int32_t row = rows_.position(known.row);
    return row >= 0 && column <= rows_.sub_item_count(row) &&
           exact_width(rows_.text(row, column), measurer) == known.width;
}

void ColumnMeasure::measure(Column& known, std::int32_t column, const TextMeasurer& measurer) {
    Widest plain(plain_candidates, known.width / plain_growth);
    Widest shaped(shaped_candidates, known.width / shaped_growth);
    rows_.visit_texts(column, known.revision, [&](RowRef row, std::u16string_view text) {
        const CharacterWidths::Sum sum = characters_.sum(text, measurer);
        (sum.shaped ? shaped : plain).offer({sum.width, row, text});
    });
    const auto measure_all = [&](const std::vector<Candidate>& candidates, std::int32_t growth) {
        for (const Candidate& candidate : candidates) {
            if (candidate.estimate * growth <= known.width)
                return;
            const std::int32_t width = exact_width(candidate.text, measurer);
            if (width > known.width)
                known = {known.revision, width, candidate.row};
        }
    };
    measure_all(plain.take(), plain_growth);
    measure_all(shaped.take(), shaped_growth);
}

void ColumnMeasure::invalidate() {
    characters_.forget();
    columns_.clear();
}

} // namespace vellora
