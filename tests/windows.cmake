# The tests that need Windows: the real library in containers of our own, and the hosts of the screen tests.
set(tests_dir ${CMAKE_CURRENT_LIST_DIR})
set(host_libraries ole32 oleaut32 uuid comctl32 gdi32 user32 advapi32)

# A container for controls, which knows nothing of Vellora.
file(GLOB container_sources CONFIGURE_DEPENDS ${tests_dir}/support/container/*.cpp)
add_library(test_container STATIC ${container_sources})
target_include_directories(test_container PUBLIC ${tests_dir})
target_link_libraries(test_container PUBLIC vellora_options ${host_libraries})

# The container sample's form files, as far as they are the platform's.
set(form_file_parts disk.cpp file.cpp objects.cpp property_bag.cpp replacement.cpp value.cpp)
list(TRANSFORM form_file_parts PREPEND ${form_dir}/form_)
add_library(form_files STATIC ${form_file_parts})
target_link_libraries(form_files PUBLIC form_text)

# com/: the library through its public interface.
file(GLOB com_test_sources CONFIGURE_DEPENDS
  ${tests_dir}/com/*.cpp ${tests_dir}/com/host_families/*.cpp ${tests_dir}/com/support/*.cpp ${tests_dir}/regress/com_*.cpp)
add_executable(com_tests ${com_test_sources})
# They run for seconds and are built often.
target_compile_options(com_tests PRIVATE -O0 -g1)
# Reading these takes a third of the time of compiling a test.
target_precompile_headers(com_tests PRIVATE <gtest/gtest.h> <windows.h> <olectl.h>)
target_compile_definitions(com_tests PRIVATE
  VELLORA_TESTS_DIR="${tests_dir}" VELLORA_VERSION="${PROJECT_VERSION}")
target_link_libraries(com_tests PRIVATE
  test_container form_files vellora_win32 vellora_com vellora_behaviour vellora_idl gtest gtest_main
  ${host_libraries} uxtheme imm32 oleacc shlwapi version)
# The tests load the library by its path, so nothing but this makes it.
add_dependencies(com_tests VelloraCTL)

# What a screen reader does, in a process of its own.
file(GLOB list_reader_sources CONFIGURE_DEPENDS ${tests_dir}/support/list_reader/*.cpp)
add_executable(list_reader ${list_reader_sources})
target_include_directories(list_reader PRIVATE ${tests_dir})
target_link_libraries(list_reader PRIVATE vellora_options ${host_libraries} oleacc)
add_dependencies(com_tests list_reader)

# package/: a program that has the library in use, and sums of files, where the platform's own program does nothing.
add_executable(library_holder ${tests_dir}/support/library_holder/main.cpp)
target_link_libraries(library_holder PRIVATE vellora_options vellora_idl ${host_libraries})
add_executable(certutil ${tests_dir}/support/certutil/main.cpp)
target_link_libraries(certutil PRIVATE vellora_options advapi32)
target_link_options(certutil PRIVATE -municode)

include(${tests_dir}/hosting/hosting.cmake)

# screen/: a form that the Python tests drive line by line.
file(GLOB form_host_sources CONFIGURE_DEPENDS ${tests_dir}/support/form_host/*.cpp)
if(form_host_sources)
  add_executable(form_host ${form_host_sources} ${tests_dir}/support/form_host/form_host.rc)
  target_link_libraries(form_host PRIVATE test_container vellora_idl ${host_libraries})
  add_dependencies(form_host VelloraCTL)
endif()
