// Module files in the process: loading, names, and what lies in which.
#pragma once

#include <filesystem>
#include <string>

#include "windows.h"

namespace host
{
struct LoadedFile
{
    void* handle = nullptr;
    std::string reason{};    // why there is no handle
    bool isRefused = false;  // by the module's own start
};

// Loads a module file and starts it. A file with a handle is to be unloaded, refused or not.
LoadedFile loadFile(const std::filesystem::path& path);
// Ends the module first, and its static objects.
void unloadFile(void* handle);
// Null for a name that the file does not export.
void* exportOf(void* handle, const char* name);

// Path of a module's file as it was named, the program's for null; empty for an unknown one.
std::filesystem::path modulePath(HINSTANCE module);

// Whether the handle is the program's or that of a module that is in the process.
bool isModule(HINSTANCE handle);

// The program itself.
HINSTANCE programInstance();

// The module, program or library that holds an address of this process; null for none.
HINSTANCE instanceHolding(const void* address);
}  // namespace host
