#include "tests/support/dialogtemplate.h"

#include <utility>

#include "host/windows/emulated/moduleresources.h"

namespace support
{
namespace
{
template <class Number>
void put(Bytes& bytes, Number number)
{
    for (std::size_t i = 0; i < sizeof number; ++i)
    {
        bytes.push_back(std::byte(std::uint64_t(number) >> (8 * i) & 0xFF));
    }
}

void putText(Bytes& bytes, LPCWSTR text)
{
    for (; *text != L'\0'; ++text)
    {
        put(bytes, WORD(*text));
    }
    put(bytes, WORD(0));
}

void putNameOrNumber(Bytes& bytes, LPCWSTR name)
{
    const auto number = reinterpret_cast<UINT_PTR>(name);
    if (number > 0xFFFF)
    {
        putText(bytes, name);
        return;
    }
    put(bytes, WORD(0xFFFF));
    put(bytes, WORD(number));
}

void align(Bytes& bytes)
{
    bytes.resize((bytes.size() + 3) / 4 * 4);
}

void append(Bytes& bytes, const Bytes& more)
{
    bytes.insert(bytes.end(), more.begin(), more.end());
}

void putBox(Bytes& bytes, int x, int y, int width, int height)
{
    for (const int value : {x, y, width, height})
    {
        put(bytes, std::int16_t(value));
    }
}

void putFont(Bytes& bytes)
{
    put(bytes, WORD(8));
    put(bytes, WORD(400));
    put(bytes, BYTE(0));  // italic
    put(bytes, BYTE(1));  // character set
    putText(bytes, L"MS Shell Dlg");
}

const std::size_t countOffset = 16;  // the offset of the number of controls
}  // namespace

TemplateBuilder::TemplateBuilder(LPCWSTR caption, int width, int height, DWORD style)
{
    put(m_head, WORD(1));
    put(m_head, WORD(0xFFFF));
    put(m_head, DWORD(0));  // help id
    put(m_head, DWORD(0));  // extended style
    put(m_head, style);
    put(m_head, WORD(0));
    putBox(m_head, 0, 0, width, height);
    put(m_head, WORD(0));  // menu
    put(m_head, WORD(0));  // class
    putText(m_head, caption);
    if ((style & DS_SETFONT) != 0)
    {
        putFont(m_head);
    }
}

TemplateBuilder& TemplateBuilder::control(int id, LPCWSTR className, DWORD style, int x, int y,
                                          int width, int height, LPCWSTR text)
{
    Bytes bytes;
    put(bytes, DWORD(0));  // help id
    put(bytes, DWORD(0));  // extended style
    put(bytes, style | WS_CHILD | WS_VISIBLE);
    putBox(bytes, x, y, width, height);
    put(bytes, DWORD(id));
    putNameOrNumber(bytes, className);
    putNameOrNumber(bytes, text);
    put(bytes, WORD(0));  // size of the creation data
    m_controls.push_back(std::move(bytes));
    return *this;
}

TemplateBuilder& TemplateBuilder::creationData(const Bytes& data)
{
    Bytes& control = m_controls.back();
    control.erase(control.end() - sizeof(WORD), control.end());
    put(control, WORD(data.size()));
    append(control, data);
    return *this;
}

Bytes TemplateBuilder::bytes() const
{
    Bytes bytes = m_head;
    bytes[countOffset] = std::byte(m_controls.size() & 0xFF);
    bytes[countOffset + 1] = std::byte(m_controls.size() >> 8);
    for (const Bytes& control : m_controls)
    {
        align(bytes);
        append(bytes, control);
    }
    return bytes;
}

// The empty resource that every such file begins with.
ResourceFile::ResourceFile()
{
    add(MAKEINTRESOURCEW(0), MAKEINTRESOURCEW(0), {});
}

ResourceFile& ResourceFile::dialog(LPCWSTR name, const Bytes& bytes)
{
    return add(RT_DIALOG, name, bytes);
}

ResourceFile& ResourceFile::bitmap(LPCWSTR name, const Bytes& bytes)
{
    return add(RT_BITMAP, name, bytes);
}

ResourceFile& ResourceFile::add(LPCWSTR type, LPCWSTR name, const Bytes& bytes)
{
    Bytes keys;
    putNameOrNumber(keys, type);
    putNameOrNumber(keys, name);
    align(keys);
    const std::size_t sizes = 8;
    const std::size_t tail = 16;  // data version, flags, language, version, characteristics
    put(m_bytes, DWORD(bytes.size()));
    put(m_bytes, DWORD(sizes + keys.size() + tail));
    append(m_bytes, keys);
    append(m_bytes, Bytes(tail));
    append(m_bytes, bytes);
    align(m_bytes);
    return *this;
}

GivenResources::GivenResources(HINSTANCE module, const ResourceFile& file)
    : m_module(module), m_bytes(file.bytes())
{
    host::setModuleResources(module, m_bytes);
}

GivenResources::~GivenResources()
{
    host::setModuleResources(m_module, {});
}

// Returns numbers that are not addresses of memory.
HINSTANCE newModule()
{
    static UINT_PTR last = 0;
    return reinterpret_cast<HINSTANCE>(++last);
}
}  // namespace support
