# Warnings are errors in our own code; see each switched-off one for its reason.
add_library(vellora_warnings INTERFACE)
target_compile_options(vellora_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)

add_library(vellora_options INTERFACE)
target_include_directories(vellora_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_link_libraries(vellora_options INTERFACE vellora_warnings)

if(VELLORA_SANITIZE)
  target_compile_options(vellora_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(vellora_options INTERFACE -fsanitize=address,undefined)
endif()

if(WIN32)
  target_compile_definitions(vellora_options INTERFACE
    UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX STRICT _WIN32_WINNT=0x0601 NTDDI_VERSION=0x06010000)
  target_compile_options(vellora_options INTERFACE -ffunction-sections -fdata-sections)
  target_link_options(vellora_options INTERFACE -static -Wl,--gc-sections -Wl,--no-insert-timestamp)
  if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    # Single arithmetic with SSE gives the same results as the native build; x87 would not.
    target_compile_options(vellora_options INTERFACE -msse2 -mfpmath=sse)
  endif()
endif()
