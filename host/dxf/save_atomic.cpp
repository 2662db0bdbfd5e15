#include "host/dxf/save_atomic.h"

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
        return writeBinary(style, produce, drain);
    TagWriter writer(drain, style);
    produce(writer);
    writer.flush();
}

void saveAtomically(const std::string& path, const TagStyle& style, const Producer& produce)
try
{
    Replacement file(path);
    writeTags(style, produce, [&](std::string_view bytes) { file.write(bytes); });
    file.takePlace();
}
catch (const std::domain_error& noTagCanHoldIt)
{
    failSaving(path, noTagCanHoldIt.what());
}

void saveAtomically(const std::string& path, const Edits& edits)
{
    saveAtomically(path, edits.file().style(), [&](TagWriter& writer) { edits.write(writer); });
}
}  // namespace host::dxf
