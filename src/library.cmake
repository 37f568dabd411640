# The library for Windows: the public interface compiled by widl, then the layers on top of the behaviour, and the
# binary that carries all of it. VelloraCTL.ocx lies in the build root, symbols and all; what is given away is made
# from it.
enable_language(RC)
find_package(Python3 REQUIRED COMPONENTS Interpreter)

# ---- The public interface: type library, header and identifiers ------------------------------------------------

# The standard OLE declarations and the standard type library, from the distribution's libwine-dev and wine64.
find_path(WINE_IDL_DIR oaidl.idl NO_CMAKE_FIND_ROOT_PATH REQUIRED
  PATHS /usr/include/wine/wine/windows /usr/include/wine/windows)
find_path(WINE_TLB_DIR stdole2.tlb NO_CMAKE_FIND_ROOT_PATH REQUIRED
  PATHS /usr/lib/x86_64-linux-gnu/wine/x86_64-windows)

set(vellora_idl_file ${PROJECT_SOURCE_DIR}/idl/VelloraCTL.idl)
set(vellora_idl_dir ${CMAKE_BINARY_DIR}/idl)
file(MAKE_DIRECTORY ${vellora_idl_dir})
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  set(vellora_widl ${VELLORA_WIDL} -m32 -I ${WINE_IDL_DIR} -L ${WINE_TLB_DIR})
else()
  # A type library marked for 32 bits would take the place of the 32-bit one when it is registered.
  set(vellora_widl ${VELLORA_WIDL} -m64 -I ${WINE_IDL_DIR} -L ${WINE_TLB_DIR})
endif()

add_custom_command(
  OUTPUT ${vellora_idl_dir}/VelloraCTL.tlb
  COMMAND ${vellora_widl} -t -o VelloraCTL.tlb ${vellora_idl_file}
  COMMAND Python3::Interpreter ${PROJECT_SOURCE_DIR}/tools/settle_type_library.py VelloraCTL.tlb
  DEPENDS ${vellora_idl_file} ${PROJECT_SOURCE_DIR}/tools/settle_type_library.py
  WORKING_DIRECTORY ${vellora_idl_dir}
  VERBATIM)
add_custom_command(
  OUTPUT ${vellora_idl_dir}/VelloraCTL.h ${vellora_idl_dir}/VelloraCTL_i.c
  COMMAND ${vellora_widl} -h -o VelloraCTL.h ${vellora_idl_file}
  COMMAND ${vellora_widl} -u -o VelloraCTL_i.c ${vellora_idl_file}
  DEPENDS ${vellora_idl_file}
  WORKING_DIRECTORY ${vellora_idl_dir}
  VERBATIM)

# Whoever talks to the control links vellora_idl: the header, and the identifiers by their names.
add_library(vellora_identifiers STATIC ${vellora_idl_dir}/VelloraCTL_i.c ${vellora_idl_dir}/VelloraCTL.h)
set_source_files_properties(${vellora_idl_dir}/VelloraCTL_i.c PROPERTIES LANGUAGE CXX)
add_library(vellora_idl INTERFACE)
target_include_directories(vellora_idl SYSTEM INTERFACE ${vellora_idl_dir})
target_link_libraries(vellora_idl INTERFACE vellora_identifiers)
add_dependencies(vellora_idl vellora_identifiers)

# ---- The layers on top of the behaviour -------------------------------------------------------------------------

file(GLOB win32_sources CONFIGURE_DEPENDS widgets/win32/*.cpp)
add_library(vellora_win32 STATIC ${win32_sources})
target_link_libraries(vellora_win32 PUBLIC vellora_behaviour)
target_compile_options(vellora_win32 PRIVATE $<$<CONFIG:Release>:-Os>)

file(GLOB com_sources CONFIGURE_DEPENDS com/*.cpp)
add_library(vellora_com STATIC ${com_sources})
target_link_libraries(vellora_com PUBLIC vellora_behaviour)
target_compile_options(vellora_com PRIVATE $<$<CONFIG:Release>:-Os>)

# ---- The library ------------------------------------------------------------------------------------------------

set(toolbox_bitmap ${vellora_idl_dir}/toolbox.bmp)
add_custom_command(
  OUTPUT ${toolbox_bitmap}
  COMMAND Python3::Interpreter ${PROJECT_SOURCE_DIR}/tools/draw_toolbox_bitmap.py ${toolbox_bitmap}
  DEPENDS ${PROJECT_SOURCE_DIR}/tools/draw_toolbox_bitmap.py
  VERBATIM)

# For programs that use the library without registration.
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  set(manifest_architecture x86)
else()
  set(manifest_architecture amd64)
endif()
set(manifest ${CMAKE_BINARY_DIR}/VelloraCTL.manifest)
set(manifest_sources ${vellora_idl_file} ${CMAKE_CURRENT_LIST_DIR}/com/control_class.h)
add_custom_command(
  OUTPUT ${manifest}
  COMMAND Python3::Interpreter ${PROJECT_SOURCE_DIR}/tools/make_manifest.py
    ${manifest_sources} ${PROJECT_VERSION} ${manifest_architecture} ${manifest}
  DEPENDS ${manifest_sources} ${PROJECT_SOURCE_DIR}/tools/make_manifest.py ${PROJECT_SOURCE_DIR}/tools/idl_model.py
  VERBATIM)
add_custom_target(vellora_manifest DEPENDS ${manifest})

file(GLOB server_sources CONFIGURE_DEPENDS server/*.cpp)
add_library(VelloraCTL SHARED ${server_sources} server/VelloraCTL.rc server/exports.def)
add_dependencies(VelloraCTL vellora_manifest)
set_source_files_properties(server/VelloraCTL.rc PROPERTIES
  INCLUDE_DIRECTORIES ${vellora_idl_dir}
  OBJECT_DEPENDS "${vellora_idl_dir}/VelloraCTL.tlb;${toolbox_bitmap}"
  COMPILE_DEFINITIONS
    "VELLORA_MAJOR=${PROJECT_VERSION_MAJOR};VELLORA_MINOR=${PROJECT_VERSION_MINOR};VELLORA_REVISION=${PROJECT_VERSION_PATCH}")
target_compile_options(VelloraCTL PRIVATE $<$<AND:$<CONFIG:Release>,$<COMPILE_LANGUAGE:CXX>>:-Os>)
set_target_properties(VelloraCTL PROPERTIES
  PREFIX "" SUFFIX .ocx
  RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}
  ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/import)
target_link_libraries(VelloraCTL PRIVATE vellora_win32 vellora_com vellora_idl
  ole32 oleaut32 uuid comctl32 comdlg32 gdi32 user32 advapi32 uxtheme imm32 oleacc shlwapi version)

# Failures of the standard library without their messages: see server/lean_runtime.cpp.
foreach(function _ZSt17__throw_bad_allocv _ZSt28__throw_bad_array_new_lengthv _ZSt20__throw_length_errorPKc
    _ZSt19__throw_logic_errorPKc _ZSt24__throw_out_of_range_fmtPKcz _ZSt20__throw_system_errori)
  target_link_options(VelloraCTL PRIVATE -Wl,--wrap=${function})
endforeach()

# The same sources give the same bytes: a fixed base, and no time stamp (see compiler.cmake).
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
  target_link_options(VelloraCTL PRIVATE -Wl,--image-base,0x1FA40000 -Wl,--enable-stdcall-fixup)
else()
  target_link_options(VelloraCTL PRIVATE -Wl,--image-base,0x1FA400000 -Wl,--high-entropy-va)
endif()
