# The same unit tests, but for those of what Windows itself does here (windows, headless), of pictures
# and plots, which this build does not draw, and of other systems' files (posix). Those that stand before
# a function of the host and hand the call on (app, command, output, settings) need a linker that lets
# them.
set(gtest_force_shared_crt ON CACHE BOOL "")
add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
foreach(library gtest gmock gmock_main)
  target_compile_options(${library} PRIVATE -w)
endforeach()

file(GLOB_RECURSE test_sources CONFIGURE_DEPENDS *.cpp)
list(FILTER test_sources EXCLUDE REGEX "/(readers|faults|relations|scarce|fuzz)/")
list(FILTER test_sources EXCLUDE REGEX "/(headless|emulated|dialogs|pictures|plot|posix)/")
list(FILTER test_sources EXCLUDE REGEX "/(app|command|output|program)/")
list(FILTER test_sources EXCLUDE REGEX "/windows/(calls|format|numbers|streams)_test[.]cpp")
list(FILTER test_sources EXCLUDE REGEX
  "/(meter|modulepath|inistore_test|dialogtemplate|settings[a-z]*_test|textstyles_test|damaged_test)[.]cpp")
add_executable(unit_tests ${test_sources} $<TARGET_OBJECTS:host>)
target_compile_features(unit_tests PRIVATE cxx_std_20)
# Compiling takes longer than running; and a false alarm of this compiler.
target_compile_options(unit_tests PRIVATE -O0 -Wno-array-bounds)
target_include_directories(unit_tests PRIVATE ${CMAKE_SOURCE_DIR})
target_link_libraries(unit_tests PRIVATE module_objects rxapi module_resources gmock_main
  comctl32 msimg32 gdi32 shlwapi)
# Functions of the tests stand before those of the host.
target_link_options(unit_tests PRIVATE -Wl,--allow-multiple-definition)
target_compile_definitions(unit_tests PRIVATE
  TESTS_DIR="${CMAKE_SOURCE_DIR}/tests"
  TEST_MODULES_DIR="${CMAKE_BINARY_DIR}/test_modules")
target_precompile_headers(unit_tests PRIVATE
  <gtest/gtest.h> <gmock/gmock.h> ${CMAKE_CURRENT_SOURCE_DIR}/support/windowsnames.h)
set(tests ${CMAKE_CURRENT_SOURCE_DIR})
set_source_files_properties(${tests}/database/tables_test.cpp PROPERTIES
  COMPILE_OPTIONS -Wno-stringop-overread)  # another one
# The C runtime's own wide calls, as the module has them.
set_source_files_properties(${tests}/windows/native/runtime_test.cpp PROPERTIES
  SKIP_PRECOMPILE_HEADERS ON
  COMPILE_OPTIONS "-D__USE_MINGW_ANSI_STDIO=0;-includestdio.h;-includewchar.h")
