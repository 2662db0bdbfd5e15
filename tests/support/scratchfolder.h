// A separate folder for a test that writes thousands of small files.
#pragma once

#include <stdlib.h>
#include <unistd.h>

#include <filesystem>
#include <string>

namespace support
{
// Creates an empty folder, in memory where the system has such a place. The caller removes it.
inline std::filesystem::path scratchFolder()
{
    const char* const inMemory = "/dev/shm";
    const std::filesystem::path place = access(inMemory, W_OK) == 0
                                            ? std::filesystem::path(inMemory)
                                            : std::filesystem::temp_directory_path();
    std::string pattern = (place / "netrax-XXXXXX").string();
    return mkdtemp(pattern.data());
}
}  // namespace support
