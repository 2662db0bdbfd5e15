// The files of modules in this process: loads them, names them, and finds the file that holds an
// address.
#pragma once

#include <filesystem>
#include <string>

#include "windows.h"

namespace host
{
// The outcome of loadFile.
struct LoadedFile
{
    void* handle = nullptr;
    std::string reason{};    // why there is no handle
    bool isRefused = false;  // the module's own start failed
};

// Loads a module's file and starts the module. The caller unloads a file that has a handle, also
// when the module refused to start.
LoadedFile loadFile(const std::filesystem::path& path);
// Ends the module, destroys its static objects and unloads its file.
void unloadFile(void* handle);
// Address of what the file exports under that name [borrowed]; null when there is no such name.
void* exportOf(void* handle, const char* name);

// Path of a module's file as it was named when it was loaded. Null stands for the program. Empty
// for a handle of no module.
std::filesystem::path modulePath(HINSTANCE module);

// Whether the handle is the program's or that of a module that is in the process.
bool isModule(HINSTANCE handle);

// Handle of the program.
HINSTANCE programInstance();

// Handle of the module, program or library that holds an address of this process; null when none
// does.
HINSTANCE instanceHolding(const void* address);
}  // namespace host
