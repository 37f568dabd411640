#include "com/byte_buffer.h"

#include "com/guard.h"

namespace vellora::com {

std::span<const std::byte> ByteReader::bytes(std::size_t count, std::size_t size_of_one) {
    if (count > left_.size() / size_of_one) // the product may not fit
        throw ComFailure(STG_E_DOCFILECORRUPT);
    const std::size_t size = count * size_of_one;
    const std::span<const std::byte> taken = left_.first(size);
    left_ = left_.subspan(size);
    return taken;
}

} // namespace vellora::com
