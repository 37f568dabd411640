// New inputs from old ones.
#pragma once

#include "fuzz/fuzzer.h"

#include <random>

namespace vellora::fuzz {

class Mutation {
public:
    Mutation(std::uint32_t seed, const std::vector<Input>& words) : random_(seed), words_(words) {}

    /// One of the pool, changed in a few places.
    Input next(const std::vector<Input>& pool);

private:
    std::size_t below(std::size_t limit) { return random_() % limit; }
    std::uint8_t byte() { return static_cast<std::uint8_t>(random_()); }

    void change(Input& input, const std::vector<Input>& pool);
    void overwrite_number(Input& input);
    void insert(Input& input, const Input& piece);
    void erase(Input& input);
    Input piece_of(const Input& input);

    std::mt19937 random_;
    const std::vector<Input>& words_;
};

} // namespace vellora::fuzz
