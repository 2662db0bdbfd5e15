#include "host/dxf/outputfile.h"

#include "host/dxf/replacement.h"
#include "host/dxf/atomicsave.h"

namespace host
{
Result<> checkOutputFile(const std::string& path)
try
{
    dxf::requireReplaceable(path);
    return Done{};
}
catch (const dxf::Error& error)
{
    return Failure{error.what()};
}

Result<> writeOutputFile(const std::string& path, std::string_view bytes)
try
{
    dxf::saveAtomically(path, {}, [&](dxf::TagWriter& writer) { writer.raw(bytes); });
    return Done{};
}
catch (const dxf::Error& error)
{
    return Failure{error.what()};
}
}  // namespace host
