// The file that keeps the options from one run to the next.
#pragma once

#include "settings/gridsettings.h"
#include "settings/inistore.h"

// Returns the path of properties.ini in the folder of the module. If the module's path has no
// folder, the path names the file in the working folder. The path is empty for a module whose path
// has more than 520 characters; a file with an empty path can be neither read nor written.
CString settingsFilePath(HMODULE module);

// The contents of the file as they were when the file was loaded. The options are in the section
// "GRID".
class SettingsFile
{
public:
    // Stores the path. The constructor does not read the file; load does.
    explicit SettingsFile(const CString& path);

    // Sets the options to the values in the file. If the file cannot be opened or has no section
    // "GRID", the settings stay unchanged. If the section lacks a key, the value counts as "0".
    void load(GridSettings& settings);

    // Replaces the section "GRID" and writes the file. Keys of the section that are not options are
    // removed; other sections stay. Returns false when the file cannot be opened for writing or is
    // not written completely.
    bool save(const GridSettings& settings);

private:
    CString m_path;
    IniStore m_store;
};
