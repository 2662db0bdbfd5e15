// Dialog templates and resource files as a resource compiler writes them, for tests.
#pragma once

#include <cstddef>
#include <vector>

#include "windows.h"
#include "winuser.h"

namespace support
{
typedef std::vector<std::byte> Bytes;

const DWORD plainDialog = DS_SETFONT | DS_MODALFRAME | WS_POPUP | WS_CAPTION | WS_SYSMENU;

// A template of the extended form. Positions and sizes are dialog units. A class and a picture may
// be given by name or by number (MAKEINTRESOURCEW).
class TemplateBuilder
{
public:
    TemplateBuilder(LPCWSTR caption, int width, int height, DWORD style = plainDialog);

    // A visible child, whatever the style says besides.
    TemplateBuilder& control(int id, LPCWSTR className, DWORD style, int x, int y, int width,
                             int height, LPCWSTR text = L"");
    // Data that the last control gets when it is made.
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

// Gives a module resources for as long as it lives. What the module had before is gone afterwards,
// so take a handle that no module has: newModule().
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

// A handle that no module has.
HINSTANCE newModule();
}  // namespace support
