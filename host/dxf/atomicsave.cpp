#include "host/dxf/atomicsave.h"

#include <algorithm>
#include <stdexcept>

#include "host/dxf/binaryform.h"
#include "host/dxf/replacement.h"
#include "host/dxf/savefailed.h"

namespace host::dxf
{
namespace
{
void writeBinary(const TagStyle& style, const Producer& produce, const TagWriter::Drain& drain)
{
    BinaryEncoder encoder(drain, style.binaryCodeSize);
    TagWriter writer([&](std::string_view ascii) { encoder.take(ascii); }, style);
    produce(writer);
    writer.flush();
    encoder.finish();
}
}  // namespace

void writeTags(const TagStyle& style, const Producer& produce, const TagWriter::Drain& drain)
{
    if (style.binaryCodeSize != 0)
    {
        return writeBinary(style, produce, drain);
    }
    TagWriter writer(drain, style);
    produce(writer);
    writer.flush();
}

namespace
{
// Passes bytes on in portions small enough for the progress to move while a person waits.
class TellingDrain
{
public:
    TellingDrain(Replacement& file, const Progress& progress, std::size_t size)
        : m_file(file), m_progress(progress), m_size(size)
    {
    }

    void take(std::string_view bytes)
    {
        const std::size_t atOnce = m_progress ? std::size_t(1) << 22 : bytes.size();
        for (; !bytes.empty(); bytes.remove_prefix(std::min(atOnce, bytes.size())))
        {
            write(bytes.substr(0, atOnce));
        }
    }

private:
    void write(std::string_view bytes)
    {
        m_file.write(bytes);
        m_done += bytes.size();
        if (m_progress)
        {
            m_progress(std::min(double(m_done) / double(m_size), 1.0));
        }
    }

    Replacement& m_file;
    const Progress& m_progress;
    std::size_t m_size;
    std::size_t m_done = 0;
};

void replaceFile(const std::string& path, const TagStyle& style, const Producer& produce,
                 const Progress& progress, std::size_t size)
try
{
    Replacement file(path);
    TellingDrain drain(file, progress, size);
    writeTags(style, produce, [&](std::string_view bytes) { drain.take(bytes); });
    file.takePlace();
}
catch (const std::domain_error& noTagCanHoldIt)
{
    failSaving(path, noTagCanHoldIt.what());
}
}  // namespace

void saveAtomically(const std::string& path, const TagStyle& style, const Producer& produce)
{
    replaceFile(path, style, produce, {}, 1);
}

void saveAtomically(const std::string& path, const Edits& edits, const Progress& progress,
                    std::size_t size)
{
    replaceFile(
        path, edits.file().style(), [&](TagWriter& writer) { edits.write(writer); }, progress,
        size);
}
}  // namespace host::dxf
