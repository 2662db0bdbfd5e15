// Builds dialog templates and resource files as a resource compiler writes them, for tests.
#pragma once

#include <cstddef>
#include <vector>

#include "windows.h"
#include "winuser.h"

namespace support
{
typedef std::vector<std::byte> Bytes;

const DWORD plainDialog = DS_SETFONT | DS_MODALFRAME | WS_POPUP | WS_CAPTION | WS_SYSMENU;

// A template of the extended form. Positions and sizes are in dialog units. Classes and pictures
// have a name or a number (MAKEINTRESOURCEW).
class TemplateBuilder
{
public:
    TemplateBuilder(LPCWSTR caption, int width, int height, DWORD style = plainDialog);

    // Adds a visible child, whatever else the style contains.
    TemplateBuilder& control(int id, LPCWSTR className, DWORD style, int x, int y, int width,
                             int height, LPCWSTR text = L"");
    // Adds data that the last control receives when it is created.
    TemplateBuilder& creationData(const Bytes& data);

    Bytes bytes() const;

private:
    Bytes m_head;
    std::vector<Bytes> m_controls;
};

// A compiled resource file (.res).
class ResourceFile
{
public:
    ResourceFile();

    ResourceFile& dialog(LPCWSTR name, const Bytes& bytes);
    ResourceFile& bitmap(LPCWSTR name, const Bytes& bytes);
    ResourceFile& add(LPCWSTR type, LPCWSTR name, const Bytes& bytes);

    const Bytes& bytes() const { return m_bytes; }

private:
    Bytes m_bytes;
};

// Gives a module resources while it lives. The module's former resources are lost afterwards, so
// use a handle that no module has: newModule().
class GivenResources
{
public:
    GivenResources(HINSTANCE module, const ResourceFile& file);
    ~GivenResources();
    GivenResources(const GivenResources&) = delete;
    GivenResources& operator=(const GivenResources&) = delete;

private:
    HINSTANCE m_module;
    Bytes m_bytes;
};

// Returns a handle that no module has.
HINSTANCE newModule();
}  // namespace support
