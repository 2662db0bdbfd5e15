#include "host/dxf/lineform.h"

#include <utility>

namespace host::dxf
{
namespace
{
// Takes a record's tags as a TagWriter does, and splits their bytes at each handle and coordinate.
class FormWriter
{
public:
    explicit FormWriter(const TagStyle& style)
        : m_writer([this](std::string_view bytes) { m_bytes += bytes; }, style)
    {
    }

    void text(Code code, std::string_view value) { m_writer.text(code, value); }
    void integer(Code code, std::int64_t value) { m_writer.integer(code, value); }
    void real(Code code, double value) { m_writer.real(code, value); }
    void point(Code code, double x, double y, double z);
    void handle(Code code, schema::Handle value);
    RecordForm finish();

private:
    std::string cutBefore(Code code);
    void coordinate(Code code);

    std::string m_bytes;
    TagWriter m_writer;
    RecordForm m_form{};
    int m_coordinates = 0;
};

void FormWriter::point(Code code, double x, double y, double z)
{
    if (code != schema::line::start && code != schema::line::end)
    {
        m_writer.point(code, x, y, z);
        return;
    }
    coordinate(code);
    coordinate(code.y());
    coordinate(code.z());
}

void FormWriter::handle(Code code, schema::Handle value)
{
    if (code != schema::handle)
    {
        m_writer.handle(code, value);
        return;
    }
    m_form.head = cutBefore(code);
    m_form.hasHandle = true;
}

// Closes the part of the form before a coordinate. The first coordinate follows the common part;
// each of the others follows a gap.
void FormWriter::coordinate(Code code)
{
    const std::string bytes = cutBefore(code);
    if (m_coordinates == 0)
    {
        m_form.common = bytes;
    }
    else
    {
        m_form.gaps[m_coordinates - 1] = RecordForm::Gap(bytes);
    }
    ++m_coordinates;
}

std::string FormWriter::cutBefore(Code code)
{
    m_writer.codeLine(code);
    m_writer.flush();
    std::string bytes = std::exchange(m_bytes, {});
    m_writer.lineEnd();
    return bytes;
}

RecordForm FormWriter::finish()
{
    m_writer.flush();
    m_form.tail = std::move(m_bytes);
    return std::move(m_form);
}
}  // namespace

RecordForm lineFormOf(const schema::line::Line& line, const FileForm& form, const TagStyle& style,
                      bool hasHandle)
{
    schema::line::Line sample = line;
    sample.handle = hasHandle ? 1 : 0;  // any but 0 has its tag
    FormWriter writer(style);
    writeRecord(writer, schema::line::table, sample, form);
    return writer.finish();
}
}  // namespace host::dxf
