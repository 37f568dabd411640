# Cross-compiling for 32-bit Windows with mingw-w64.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86)

set(VELLORA_TRIPLET i686-w64-mingw32)
# The posix-threads flavour: the one whose library has <mutex> and <thread>.
set(CMAKE_C_COMPILER ${VELLORA_TRIPLET}-gcc-posix)
set(CMAKE_CXX_COMPILER ${VELLORA_TRIPLET}-g++-posix)
set(CMAKE_RC_COMPILER ${VELLORA_TRIPLET}-windres)
set(VELLORA_WIDL ${VELLORA_TRIPLET}-widl)

# SSE arithmetic rounds Single and Double as every other platform does; the
# 80-bit x87 registers would not.
set(CMAKE_C_FLAGS_INIT "-msse2 -mfpmath=sse")
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse")

set(CMAKE_FIND_ROOT_PATH /usr/${VELLORA_TRIPLET})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
