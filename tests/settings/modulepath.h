// Where the module seems to lie.
#pragma once

#include <string>

// While it lives, every module has this path; one at a time.
class ModulePath
{
public:
    explicit ModulePath(const std::wstring& path);
    ~ModulePath();
    ModulePath(const ModulePath&) = delete;
    ModulePath& operator=(const ModulePath&) = delete;
};
