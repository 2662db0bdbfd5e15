# The same unit tests, but for those of what Windows itself does here (windows, headless), of pictures
# of dialogs that this build does not draw, and of other systems' files (posix).
set(gtest_force_shared_crt ON CACHE BOOL "")
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
foreach(library gtest gmock gmock_main)
  target_compile_options(${library} PRIVATE -w)
endforeach()

file(GLOB_RECURSE test_sources CONFIGURE_DEPENDS *.cpp)
list(FILTER test_sources EXCLUDE REGEX "/(readers|faults|relations|exhaustion|fuzz|program)/")
list(FILTER test_sources EXCLUDE REGEX "/(headless|emulated|dialogs|pictures|cairo|posix)/")
list(FILTER test_sources EXCLUDE REGEX "/windows/(calls|format|numbers|streams)_test[.]cpp")
list(FILTER test_sources EXCLUDE REGEX "/(inistore_test|dialogtemplate|damaged_test)[.]cpp")

# Tests stand before functions of the host, original<...>("_Z..."): those get "host" before their names
# in the host's own objects, so that both are in the program.
set(renames "")
set(originals "")
foreach(source ${test_sources})
  file(STRINGS ${source} lines REGEX "\"_Z")
  string(REGEX MATCHALL "\"_Z[A-Za-z0-9_]+\"" names "${lines}")
  foreach(name ${names})
    string(REPLACE "\"" "" name ${name})
    string(APPEND renames "${name} host${name}\n")
    string(APPEND originals "ORIGINAL(${name})\n")
  endforeach()
  if(names)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})
  endif()
endforeach()
file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/originals/renames.txt CONTENT "${renames}" @ONLY)
file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/originals/originals.inc CONTENT "${originals}" @ONLY)
add_library(host_objects STATIC $<TARGET_OBJECTS:host>)
set_target_properties(host_objects PROPERTIES LINKER_LANGUAGE CXX)
set(renamed_host ${CMAKE_BINARY_DIR}/originals/libhost.a)
add_custom_command(OUTPUT ${renamed_host} VERBATIM
  COMMAND ${CMAKE_OBJCOPY} --redefine-syms=${CMAKE_BINARY_DIR}/originals/renames.txt
    $<TARGET_FILE:host_objects> ${renamed_host}
  DEPENDS host_objects ${CMAKE_BINARY_DIR}/originals/renames.txt)

file(GLOB plot_sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/host/plot/*.cpp
  ${CMAKE_SOURCE_DIR}/host/plot/windows/*.cpp ${CMAKE_SOURCE_DIR}/host/png/windows/drawing.cpp)
add_executable(unit_tests ${test_sources} ${plot_sources} ${renamed_host}
  ${CMAKE_SOURCE_DIR}/host/program/console/manifest.rc)
target_compile_features(unit_tests PRIVATE cxx_std_20)
# Compiling takes longer than running; and a false alarm of this compiler.
target_compile_options(unit_tests PRIVATE -O0 -Wno-array-bounds -Wno-attributes)
target_include_directories(unit_tests PRIVATE ${CMAKE_SOURCE_DIR} ${CMAKE_BINARY_DIR}/originals)
target_link_libraries(unit_tests PRIVATE
  -Wl,--whole-archive ${renamed_host} -Wl,--no-whole-archive module_objects rxapi module_resources
  gmock_main comctl32 msimg32 gdi32 gdiplus ole32 shlwapi)
target_compile_definitions(unit_tests PRIVATE
  TESTS_DIR="${CMAKE_SOURCE_DIR}/tests"
  TEST_MODULES_DIR="${CMAKE_BINARY_DIR}/test_modules")
target_precompile_headers(unit_tests PRIVATE
  <gtest/gtest.h> <gmock/gmock.h> ${CMAKE_CURRENT_SOURCE_DIR}/support/windowsnames.h)
set(tests ${CMAKE_CURRENT_SOURCE_DIR})
set_source_files_properties(${tests}/database/tables_test.cpp PROPERTIES
  COMPILE_OPTIONS -Wno-stringop-overread)  # another one
set_source_files_properties(${tests}/windows/native/imports.cpp PROPERTIES
  SKIP_PRECOMPILE_HEADERS ON)  # declares Windows' functions in its own way
# The C runtime's own wide calls, as the module has them.
set_source_files_properties(${tests}/windows/native/runtime_test.cpp PROPERTIES
  SKIP_PRECOMPILE_HEADERS ON
  COMPILE_OPTIONS "-D__USE_MINGW_ANSI_STDIO=0;-includestdio.h;-includewchar.h")
