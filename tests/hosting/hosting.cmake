# hosting/: the generic control hosting with a control of its own, whose type library the program carries.
set(fixture_dir ${CMAKE_CURRENT_BINARY_DIR}/hosting)
set(fixture_idl ${CMAKE_CURRENT_LIST_DIR}/support/fixture.idl)
file(MAKE_DIRECTORY ${fixture_dir})
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  set(fixture_bits -m32)
else()
  set(fixture_bits -m64)
endif()
set(fixture_widl ${VELLORA_WIDL} ${fixture_bits} -I ${WINE_IDL_DIR} -L ${WINE_TLB_DIR})

add_custom_command(
  OUTPUT ${fixture_dir}/fixture.tlb ${fixture_dir}/fixture.h ${fixture_dir}/fixture_i.c
  COMMAND ${fixture_widl} -t -o fixture.tlb ${fixture_idl}
  COMMAND ${fixture_widl} -h -o fixture.h ${fixture_idl}
  COMMAND ${fixture_widl} -u -o fixture_i.c ${fixture_idl}
  DEPENDS ${fixture_idl}
  WORKING_DIRECTORY ${fixture_dir}
  VERBATIM)

file(GLOB hosting_test_sources CONFIGURE_DEPENDS
  ${CMAKE_CURRENT_LIST_DIR}/*.cpp ${CMAKE_CURRENT_LIST_DIR}/support/*.cpp)
add_executable(hosting_tests ${hosting_test_sources} ${CMAKE_CURRENT_LIST_DIR}/support/fixture.rc
  ${fixture_dir}/fixture_i.c ${fixture_dir}/fixture.h)
set_source_files_properties(${fixture_dir}/fixture_i.c PROPERTIES LANGUAGE CXX)
set_source_files_properties(${CMAKE_CURRENT_LIST_DIR}/support/fixture.rc PROPERTIES
  INCLUDE_DIRECTORIES ${fixture_dir}
  OBJECT_DEPENDS ${fixture_dir}/fixture.tlb)
target_include_directories(hosting_tests SYSTEM PRIVATE ${fixture_dir})
# They run for seconds and are built often.
target_compile_options(hosting_tests PRIVATE -O0 -g1)
target_link_libraries(hosting_tests PRIVATE
  test_container vellora_com vellora_behaviour gtest gtest_main ${host_libraries} shlwapi)
