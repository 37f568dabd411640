#include "widgets/column_measure.h"

#include <algorithm>
#include <functional>
#include <string_view>

namespace vellora {

namespace {

constexpr std::int32_t most_pixels = 0x7FFF;

struct Candidate {
    std::int32_t estimate;
    RowRef row;
    std::u16string_view text;
    bool operator>(const Candidate& other) const { return estimate > other.estimate; }
};

/// The few texts with the greatest estimates; a heap with the least of them in front.
class Widest {
public:
    explicit Widest(std::size_t kept) : kept_(kept) { heap_.reserve(kept); }

    void offer(const Candidate& candidate) {
        if (heap_.size() == kept_) {
            if (candidate.estimate <= heap_.front().estimate)
                return;
            std::pop_heap(heap_.begin(), heap_.end(), std::greater<>());
            heap_.pop_back();
        }
        heap_.push_back(candidate);
        std::push_heap(heap_.begin(), heap_.end(), std::greater<>());
    }
    const std::vector<Candidate>& candidates() const { return heap_; }

private:
    std::size_t kept_;
    std::vector<Candidate> heap_;
};

// Where characters stand side by side the sum of their widths differs from the extent by at most the kerning
// of the pairs, so the widest text is among the first few by sum. A margin in pixels instead would let every
// row through when all are about as wide, as codes and dates are. Shaped texts keep to their sums less
// closely.
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
    Widest plain(plain_candidates);
    Widest shaped(shaped_candidates);
    rows_.visit_texts(column, known.revision, [&](RowRef row, std::u16string_view text) {
        const CharacterWidths::Sum sum = characters_.sum(text, measurer);
        (sum.shaped ? shaped : plain).offer({sum.width, row, text});
    });
    for (const Widest* group : {&plain, &shaped})
        for (const Candidate& candidate : group->candidates()) {
            const std::int32_t width = exact_width(candidate.text, measurer);
            if (width > known.width)
                known = {known.revision, width, candidate.row};
        }
}

void ColumnMeasure::invalidate() {
    characters_.forget();
    columns_.clear();
}

} // namespace vellora
