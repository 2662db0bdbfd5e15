# Libraries whose Debian packages bring sources or headers that serve every system.
find_path(CLI11_HEADERS CLI/CLI.hpp PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH REQUIRED)
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/include)
file(CREATE_LINK ${CLI11_HEADERS}/CLI ${CMAKE_BINARY_DIR}/include/CLI SYMBOLIC)
add_library(cli11 INTERFACE)
target_include_directories(cli11 SYSTEM INTERFACE ${CMAKE_BINARY_DIR}/include)
add_library(CLI11::CLI11 ALIAS cli11)
