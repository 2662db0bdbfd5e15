// The file in which the options outlive a run.
#pragma once

#include "settings/gridsettings.h"
#include "settings/inistore.h"

// Path of properties.ini in the folder of the module. Should the module's path hold no folder, the
// file is the one in the working folder. Empty for a module whose path has more than 520
// characters: no file can be opened by that name, neither to read nor to write.
CString settingsFilePath(HMODULE module);

// The section "GRID" of the file, as it was when it was loaded, with whatever else the file held.
class SettingsFile
{
public:
    explicit SettingsFile(const CString& path);

    // Lays what the file holds over the settings. Without a file, or without the section, they stay
    // as they are. With the section, a key that is missing from it counts as "0".
    void load(GridSettings& settings);

    // Writes the section anew, so keys of it that are not ours go; other sections stay. False: the
    // file could not be opened for writing or not be written whole.
    bool save(const GridSettings& settings);

private:
    CString m_path;
    IniStore m_store;
};
