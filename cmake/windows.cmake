# What a build for Windows has of its own, named as in linux.cmake.
enable_language(RC)

# Windows 7, wide calls, and the number pi as elsewhere.
add_compile_definitions(_WIN32_WINNT=0x0601 UNICODE _UNICODE NOMINMAX _USE_MATH_DEFINES)

# A library whose Debian package brings headers that serve every system.
find_path(CLI11_HEADERS CLI/CLI.hpp PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH REQUIRED)
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/include)
file(CREATE_LINK ${CLI11_HEADERS}/CLI ${CMAKE_BINARY_DIR}/include/CLI SYMBOLIC)
add_library(cli11 INTERFACE)
target_include_directories(cli11 SYSTEM INTERFACE ${CMAKE_BINARY_DIR}/include)
add_library(CLI11::CLI11 ALIAS cli11)

set(system_headers)
set(system_text text/windows)
set(system_windows windows/native)
set(system_dialogs dialogs/windows)
set(system_files dxf/windows)
set(module_start windows/native/module/version.cpp)

function(complete_host)
  target_link_libraries(host PRIVATE comctl32 msimg32 gdi32)
  set_target_properties(host PROPERTIES PREFIX "")
  # The compiler's own libraries travel with the programs.
  foreach(library libstdc++-6 libgcc_s_seh-1 libwinpthread-1)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${library}.dll
      OUTPUT_VARIABLE file OUTPUT_STRIP_TRAILING_WHITESPACE)
    configure_file(${file} ${CMAKE_BINARY_DIR}/${library}.dll COPYONLY)
  endforeach()
endfunction()

function(complete_program)
  file(GLOB console_sources CONFIGURE_DEPENDS program/console/*.cpp)
  file(GLOB picture_sources CONFIGURE_DEPENDS png/windows/*.cpp pictures/windows/*.cpp)
  file(GLOB plot_sources CONFIGURE_DEPENDS plot/*.cpp plot/windows/*.cpp)
  target_sources(program PRIVATE ${console_sources} ${picture_sources} ${plot_sources})
  target_link_libraries(program PUBLIC gdiplus ole32)
  target_sources(arxhost PRIVATE program/console/arxhost.rc program/console/manifest.rc)
endfunction()

function(add_module_resources)
  add_library(module_resources OBJECT resources/netrax.rc)
  target_include_directories(module_resources PRIVATE resources)
endfunction()

function(complete_module)
  # The C runtime's own wide calls, not those that this compiler puts in their place.
  target_compile_options(module_objects PRIVATE
    -D__USE_MINGW_ANSI_STDIO=0 "SHELL:-include stdio.h" "SHELL:-include wchar.h")
  set_target_properties(module_objects PROPERTIES UNITY_BUILD ON)  # Windows' headers are long
  target_sources(netrax PRIVATE resources/netrax.def)
  target_link_libraries(netrax PRIVATE shlwapi)
endfunction()
