// Loads the files of modules into this process, names them, and finds the file that holds an
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
    std::string reason{};    // why the load failed
    bool isRefused = false;  // whether the module's own start failed
};

// Loads a module's file and starts the module. The caller unloads every file that has a handle,
// even when the module refused to start.
LoadedFile loadFile(const std::filesystem::path& path);
// Detaches the module, destroys its static objects and unloads its file.
void unloadFile(void* handle);
// Returns the address of the function or object that the file exports under that name [borrowed],
// good as long as the module is loaded. Returns null when the file exports no such name.
void* exportOf(void* handle, const char* name);

// Returns the path of a module's file as it was named when it was loaded, or that of the program
// for null. Returns an empty path for any other handle.
std::filesystem::path modulePath(HINSTANCE module);

// Tells whether the handle is that of the program or of a module that is loaded.
bool isModule(HINSTANCE handle);

// Returns the handle of the program.
HINSTANCE programInstance();

// Returns the handle of the module, program or library that holds an address of this process, or
// null when none holds it.
HINSTANCE instanceHolding(const void* address);
}  // namespace host
