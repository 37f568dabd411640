# GoogleTest from the distribution's source package, built for whatever the current target is.
set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
set(BUILD_GMOCK OFF CACHE BOOL "" FORCE)
set(gtest_disable_pthreads ON CACHE BOOL "" FORCE)
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
# Nothing waits for it, but everybody for its compilation.
target_compile_options(gtest PRIVATE -O0 -g1)
