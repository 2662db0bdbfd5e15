// Sets the place where the module appears to be.
#pragma once

#include <string>

// While it lives, every module has this path. Only one object may exist at a time.
class ModulePath
{
public:
    explicit ModulePath(const std::wstring& path);
    ~ModulePath();
    ModulePath(const ModulePath&) = delete;
    ModulePath& operator=(const ModulePath&) = delete;
};
