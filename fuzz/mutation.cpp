#include "fuzz/mutation.h"

#include <algorithm>
#include <array>

namespace vellora::fuzz {

namespace {

constexpr std::size_t longest_input = 4096;
constexpr std::array<std::uint32_t, 14> borders{0,      1,      2,      50,         51,         0x7F,       0xFF,
                                                0x7FFF, 0x8000, 0xFFFF, 0x03FFFFFF, 0x7F800000, 0x7FFFFFFF, 0x80000000};

} // namespace

Input Mutation::next(const std::vector<Input>& pool) {
    if (pool.empty()) {
        return {byte()};
    }
    // What was found last is nearest to something new.
    const std::size_t back = std::min(below(pool.size()), below(pool.size()));
    Input input = pool[pool.size() - 1 - back];
    for (std::size_t changes = 1 + below(6); changes > 0; --changes) {
        change(input, pool);
    }
    input.resize(std::min(input.size(), longest_input));
    return input;
}

void Mutation::change(Input& input, const std::vector<Input>& pool) {
    switch (input.empty() ? 7 + below(2) : below(10)) {
    case 0:
        input[below(input.size())] ^= static_cast<std::uint8_t>(1U << below(8));
        break;
    case 1:
    case 2:
        input[below(input.size())] = byte();
        break;
    case 3:
        input[below(input.size())] += static_cast<std::uint8_t>(below(2) == 0 ? 1 : 255);
        break;
    case 4:
        overwrite_number(input);
        break;
    case 5:
        erase(input);
        break;
    case 6:
        insert(input, piece_of(input));
        break;
    case 7:
        insert(input, words_.empty() ? Input{byte(), byte()} : words_[below(words_.size())]);
        break;
    case 8:
        insert(input, {byte()});
        break;
    default:
        insert(input, piece_of(pool[below(pool.size())]));
    }
}

void Mutation::overwrite_number(Input& input) {
    const std::size_t at = below(input.size());
    const std::size_t size = std::min<std::size_t>(std::size_t{1} << below(3), input.size() - at);
    std::uint32_t number = borders[below(borders.size())];
    for (std::size_t place = at; place < at + size; ++place) {
        input[place] = static_cast<std::uint8_t>(number);
        number >>= 8;
    }
}

void Mutation::insert(Input& input, const Input& piece) {
    const auto at = static_cast<std::ptrdiff_t>(below(input.size() + 1));
    input.insert(input.begin() + at, piece.begin(), piece.end());
}

void Mutation::erase(Input& input) {
    const std::size_t at = below(input.size());
    const std::size_t size = 1 + below(std::min<std::size_t>(input.size() - at, 64));
    const auto first = input.begin() + static_cast<std::ptrdiff_t>(at);
    input.erase(first, first + static_cast<std::ptrdiff_t>(size));
}

Input Mutation::piece_of(const Input& input) {
    if (input.empty()) {
        return {};
    }
    const std::size_t at = below(input.size());
    const std::size_t size = 1 + below(std::min<std::size_t>(input.size() - at, 64));
    const auto first = input.begin() + static_cast<std::ptrdiff_t>(at);
    return {first, first + static_cast<std::ptrdiff_t>(size)};
}

} // namespace vellora::fuzz
