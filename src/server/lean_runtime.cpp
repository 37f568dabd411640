// Takes the place of the standard library's own way of failing. That composes messages and demangles names, a
// fifth of the library's size, and nobody ever reads them: the COM boundary only tells running out of memory
// from the rest. The linker sends calls of a wrapped function NAME to __wrap_NAME (see library.cmake).
#include <cstdlib>
#include <exception>
#include <new>

namespace __gnu_cxx {

void __verbose_terminate_handler() {
    std::abort();
}

} // namespace __gnu_cxx

extern "C" {

// std::__throw_bad_alloc, __throw_bad_array_new_length and __throw_length_error: more than can be held.
[[noreturn]] void __wrap__ZSt17__throw_bad_allocv() {
    throw std::bad_alloc();
}
[[noreturn]] void __wrap__ZSt28__throw_bad_array_new_lengthv() {
    throw std::bad_alloc();
}
[[noreturn]] void __wrap__ZSt20__throw_length_errorPKc(const char*) {
    throw std::bad_alloc();
}

// std::__throw_logic_error, __throw_out_of_range_fmt and __throw_system_error: a fault of the library's own.
[[noreturn]] void __wrap__ZSt19__throw_logic_errorPKc(const char*) {
    throw std::bad_exception();
}
[[noreturn]] void __wrap__ZSt24__throw_out_of_range_fmtPKcz(const char*, ...) {
    throw std::bad_exception();
}
[[noreturn]] void __wrap__ZSt20__throw_system_errori(int) {
    throw std::bad_exception();
}

} // extern "C"
