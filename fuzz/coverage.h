// Which places of the instrumented code a run came through, and about how often.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace vellora::fuzz {

class Coverage {
public:
    static constexpr std::size_t places = 1U << 16;

    /// Counts until `stop`; earlier counts are forgotten.
    void start();
    void stop();
    /// Whether the counts since `start` hold a place, or a magnitude of a place, that no earlier call saw.
    /// Those seen are remembered.
    bool is_new();
    /// Places seen so far.
    std::size_t seen() const { return seen_places_; }

private:
    std::array<std::uint8_t, places> seen_{};
    std::size_t seen_places_ = 0;
};

} // namespace vellora::fuzz
