// Arrays in the COM allocator, as counted arrays are handed to callers.
#pragma once

#include "com/ole.h"

#include <algorithm>
#include <memory>
#include <new>

namespace vellora::com {

struct TaskDeleter {
    void operator()(void* memory) const noexcept { CoTaskMemFree(memory); }
};
template <class Element>
using TaskArray = std::unique_ptr<Element[], TaskDeleter>;

/// Elements with their default values. Throws std::bad_alloc.
template <class Element>
TaskArray<Element> make_task_array(std::size_t count) {
    TaskArray<Element> array(static_cast<Element*>(CoTaskMemAlloc(count * sizeof(Element))));
    if (!array)
        throw std::bad_alloc();
    std::fill_n(array.get(), count, Element{});
    return array;
}

} // namespace vellora::com
