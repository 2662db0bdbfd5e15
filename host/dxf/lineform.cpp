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
    FormWriter(const TagStyle& style, std::optional<double> elevation)
        : m_writer([this](std::string_view bytes) { m_bytes += bytes; }, style),
          m_elevation(elevation)
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
    void cutOut(Code code, unsigned number);
    void closeGap(std::string_view bytes);

    std::string m_bytes;
    TagWriter m_writer;
    std::optional<double> m_elevation;  // of both points
    std::string m_head;
    bool m_hasHandle = false;
    std::string m_common;
    std::vector<RecordForm::Gap> m_gaps;
    std::optional<unsigned> m_number;  // the coordinate cut out last
};

void FormWriter::point(Code code, double x, double y, double z)
{
    if (code != schema::line::start && code != schema::line::end)
    {
        m_writer.point(code, x, y, z);
        return;
    }
    const unsigned first = code == schema::line::start ? 0 : 3;
    cutOut(code, first);
    cutOut(code.y(), first + 1);
    m_elevation ? m_writer.real(code.z(), *m_elevation) : cutOut(code.z(), first + 2);
}

void FormWriter::handle(Code code, schema::Handle value)
{
    if (code != schema::handle)
    {
        m_writer.handle(code, value);
        return;
    }
    m_head = cutBefore(code);
    m_hasHandle = true;
}

// Leaves a coordinate open. The bytes before it follow the coordinate before, if there is one.
void FormWriter::cutOut(Code code, unsigned number)
{
    closeGap(cutBefore(code));
    m_number = number;
}

void FormWriter::closeGap(std::string_view bytes)
{
    if (m_number)
    {
        m_gaps.push_back({*m_number, SharedBytes(bytes)});
    }
    else
    {
        m_common = bytes;
    }
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
    closeGap(m_bytes);
    return {m_head, m_hasHandle, m_common, std::move(m_gaps)};
}
}  // namespace

RecordForm lineFormOf(const schema::line::Line& line, const FileForm& form, const TagStyle& style,
                      bool hasHandle, std::optional<double> elevation)
{
    schema::line::Line sample = line;
    sample.handle = hasHandle ? 1 : 0;  // any but 0 has its tag
    FormWriter writer(style, elevation);
    writeRecord(writer, schema::line::table, sample, form);
    return writer.finish();
}
}  // namespace host::dxf
