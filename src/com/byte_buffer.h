// Little-endian bytes, written in order and read back with every length checked.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <type_traits>
#include <vector>

namespace vellora::com {

using Bytes = std::vector<std::byte>;

class ByteWriter {
public:
    void bytes(const void* data, std::size_t size) {
        const auto first = static_cast<const std::byte*>(data);
        bytes_.insert(bytes_.end(), first, first + size);
    }
    template <class Number>
    void number(Number value) {
        static_assert(std::is_trivially_copyable_v<Number>);
        bytes(&value, sizeof value);
    }
    const Bytes& written() const noexcept { return bytes_; }

private:
    Bytes bytes_;
};

class ByteReader {
public:
    explicit ByteReader(std::span<const std::byte> bytes) : left_(bytes) {}

    bool at_end() const noexcept { return left_.empty(); }
    /// Throws STG_E_DOCFILECORRUPT where so many bytes are not left.
    std::span<const std::byte> bytes(std::size_t count, std::size_t size_of_one = 1);
    template <class Number>
    Number number() {
        static_assert(std::is_trivially_copyable_v<Number>);
        Number value;
        std::memcpy(&value, bytes(sizeof value).data(), sizeof value);
        return value;
    }

private:
    std::span<const std::byte> left_;
};

} // namespace vellora::com
