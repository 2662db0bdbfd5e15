#include "host/headless/dialogtemplate.h"

#include <cstring>

#include "host/headless/windowclasses.h"

namespace host
{
namespace
{
constexpr WORD ordinalMark = 0xFFFF;  // a number stands where a text would

struct NameOrOrdinal
{
    std::wstring name;
    WORD ordinal = 0;
};

// After the first step beyond the end everything reads as zero.
class Reader
{
public:
    explicit Reader(std::span<const std::byte> bytes) : m_bytes(bytes) {}

    bool good() const { return m_good; }
    void align() { m_at = (m_at + 3) / 4 * 4; }

    void skip(std::size_t size)
    {
        m_good = m_good && m_at <= m_bytes.size() && size <= m_bytes.size() - m_at;
        m_at += m_good ? size : 0;
    }

    template <class Number>
    Number number()
    {
        Number value = 0;
        skip(sizeof value);
        if (m_good)
        {
            std::memcpy(&value, m_bytes.data() + m_at - sizeof value, sizeof value);
        }
        return value;
    }

    NameOrOrdinal nameOrOrdinal()
    {
        const WORD first = number<WORD>();
        if (first == ordinalMark)
        {
            return {{}, number<WORD>()};
        }
        NameOrOrdinal read;
        for (WORD unit = first; unit != 0; unit = number<WORD>())
        {
            read.name += wchar_t(unit);
        }
        return read;
    }

private:
    std::span<const std::byte> m_bytes;
    std::size_t m_at = 0;
    bool m_good = true;
};

// Rounds halves away from zero, as Windows does here.
LONG scaled(int units, int measure, int divisor)
{
    const int product = units * measure;
    return (product + (product < 0 ? -divisor : divisor) / 2) / divisor;
}

// A character of the font is 6 pixels wide on average and 13 high; a dialog unit is a quarter of
// the one and an eighth of the other.
RECT readPlace(Reader& reader)
{
    const LONG left = scaled(reader.number<std::int16_t>(), 6, 4);
    const LONG top = scaled(reader.number<std::int16_t>(), 13, 8);
    const LONG width = scaled(reader.number<std::int16_t>(), 6, 4);
    const LONG height = scaled(reader.number<std::int16_t>(), 13, 8);
    return {left, top, left + width, top + height};
}

Window readControl(Reader& reader)
{
    Window control;
    reader.align();
    reader.skip(8);  // help id, extended style
    control.style = reader.number<DWORD>() | WS_CHILD;
    control.place = readPlace(reader);
    control.id = reader.number<std::int32_t>();
    const NameOrOrdinal className = reader.nameOrOrdinal();
    control.kind = controlClass(className.name, className.ordinal);
    control.text = reader.nameOrOrdinal().name;
    reader.skip(reader.number<WORD>());  // data for the control, which none of these classes wants
    return control;
}

void skipFont(Reader& reader)
{
    reader.skip(6);  // size, weight, italic, character set
    reader.nameOrOrdinal();
}

bool isExtended(Reader& reader)
{
    const auto version = reader.number<WORD>();
    return version == 1 && reader.number<WORD>() == 0xFFFF;
}

RECT clientArea(const RECT& place)
{
    return {0, 0, place.right - place.left, place.bottom - place.top};
}

// Null for a class of the guest's own, as nobody can register one.
const WindowClass* readDialogClass(Reader& reader)
{
    const NameOrOrdinal named = reader.nameOrOrdinal();
    return named.name.empty() && named.ordinal == 0 ? &dialogClass : nullptr;
}

// Returns the number of controls.
int readDialog(Reader& reader, Window& dialog)
{
    reader.skip(8);  // help id, extended style
    dialog.style = reader.number<DWORD>();
    const auto count = reader.number<WORD>();
    dialog.place = clientArea(readPlace(reader));
    reader.nameOrOrdinal();  // menu
    dialog.kind = readDialogClass(reader);
    dialog.text = reader.nameOrOrdinal().name;
    if (dialog.has(DS_SETFONT))
    {
        skipFont(reader);
    }
    return count;
}
}  // namespace

std::optional<DialogTemplate> readDialogTemplate(std::span<const std::byte> bytes)
{
    Reader reader(bytes);
    if (!isExtended(reader))
    {
        return std::nullopt;
    }
    DialogTemplate read;
    const int count = readDialog(reader, read.dialog);
    bool classesKnown = read.dialog.kind != nullptr;
    for (int i = 0; i < count && classesKnown && reader.good(); ++i)
    {
        read.controls.push_back(readControl(reader));
        classesKnown = read.controls.back().kind != nullptr;
    }
    return classesKnown && reader.good() ? std::optional(read) : std::nullopt;
}
}  // namespace host
