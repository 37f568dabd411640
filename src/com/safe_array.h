// Owner of a SAFEARRAY and access to its elements.
#pragma once

#include "com/guard.h"
#include "com/ole.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <new>

namespace vellora::com {

struct SafeArrayDeleter {
    void operator()(SAFEARRAY* array) const noexcept { SafeArrayDestroy(array); }
};
using SafeArrayOwner = std::unique_ptr<SAFEARRAY, SafeArrayDeleter>;

/// A new array with lower bounds 0, of one or two dimensions. Throws std::bad_alloc.
inline SafeArrayOwner make_safe_array(VARTYPE type, std::initializer_list<std::size_t> extents) {
    SAFEARRAYBOUND bounds[2] = {};
    UINT dimensions = 0;
    for (const std::size_t extent : extents)
        bounds[dimensions++].cElements = static_cast<ULONG>(extent);
    SafeArrayOwner array(SafeArrayCreate(type, dimensions, bounds));
    if (!array)
        throw std::bad_alloc();
    return array;
}

/// The elements of an array, locked while this lives. The first dimension varies fastest.
template <class Element>
class SafeArrayElements {
public:
    explicit SafeArrayElements(SAFEARRAY* array) : array_(array) {
        check(SafeArrayAccessData(array, reinterpret_cast<void**>(&elements_)));
    }
    SafeArrayElements(const SafeArrayElements&) = delete;
    SafeArrayElements& operator=(const SafeArrayElements&) = delete;
    ~SafeArrayElements() { SafeArrayUnaccessData(array_); }

    Element& operator[](std::size_t index) const noexcept { return elements_[index]; }

private:
    SAFEARRAY* array_;
    Element* elements_ = nullptr;
};

} // namespace vellora::com
