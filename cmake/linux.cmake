# What a build for Linux has of its own, named as in windows.cmake.
find_package(CLI11 REQUIRED)
find_package(GTest REQUIRED)
find_path(CAIRO_INCLUDE cairo.h PATH_SUFFIXES cairo REQUIRED)
find_library(CAIRO cairo REQUIRED)
find_library(EDIT edit REQUIRED)
find_program(WINDRES x86_64-w64-mingw32-windres REQUIRED)

set(system_headers ${CMAKE_SOURCE_DIR}/host/windows/emulated/include)
set(system_text text/posix)
set(system_windows windows/emulated headless)
set(system_dialogs dialogs/headless)
set(system_files dxf/posix)
set(module_start windows/emulated/module/startup.cpp)

function(complete_host)
endfunction()

function(complete_program)
  # Apart from the rest: only a run that draws needs them, and the library they call is large.
  file(GLOB picture_sources CONFIGURE_DEPENDS png/cairo/*.cpp pictures/*.cpp plot/cairo/*.cpp)
  add_library(pictures STATIC ${picture_sources})
  target_include_directories(pictures SYSTEM PUBLIC ${CAIRO_INCLUDE})
  target_link_libraries(pictures PUBLIC host PRIVATE ${CAIRO})
  add_library(arxhost_pictures MODULE program/terminal/pictures/table.cpp)
  target_link_libraries(arxhost_pictures PRIVATE pictures)

  file(GLOB plot_sources CONFIGURE_DEPENDS plot/*.cpp)
  add_library(plot STATIC ${plot_sources})
  target_link_libraries(plot PUBLIC host)

  file(GLOB terminal_sources CONFIGURE_DEPENDS program/terminal/*.cpp)
  target_sources(program PRIVATE ${terminal_sources})
  target_link_libraries(program PUBLIC plot ${EDIT})
  add_dependencies(arxhost arxhost_pictures)
endfunction()

# The compiled resources travel inside the module, where the host's start-up code finds them.
function(add_module_resources)
  set(resource_file ${CMAKE_BINARY_DIR}/netrax.res)
  set(resource_object ${CMAKE_SOURCE_DIR}/host/windows/emulated/module/resources.cpp)
  file(GLOB resource_sources CONFIGURE_DEPENDS resources/*)
  add_custom_command(OUTPUT ${resource_file} DEPENDS ${resource_sources} VERBATIM
    COMMAND ${WINDRES} --preprocessor=${CMAKE_CXX_COMPILER} --preprocessor-arg=-E
      --preprocessor-arg=-xc-header --preprocessor-arg=-DRC_INVOKED
      -I ${CMAKE_SOURCE_DIR}/resources -J rc -O res
      ${CMAKE_SOURCE_DIR}/resources/netrax.rc ${resource_file})
  add_library(module_resources OBJECT ${resource_object})
  set_source_files_properties(${resource_object} PROPERTIES OBJECT_DEPENDS ${resource_file})
  target_compile_definitions(module_resources PRIVATE RESOURCE_FILE="${resource_file}")
endfunction()

function(complete_module)
  if(NOT CMAKE_CXX_FLAGS MATCHES sanitize)  # clang's sanitizers are in the program that loads the module
    target_link_options(netrax PRIVATE -Wl,--no-undefined)
  endif()
endfunction()
