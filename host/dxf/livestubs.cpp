#include "host/dxf/livestubs.h"

namespace host::dxf
{
LiveStubs liveStubs(const DatabaseCore& core)
{
    LiveStubs live;
    std::uint32_t lastStyle = UINT32_MAX;
    for (const AcDbStub& stub : core.objects())
    {
        if (stub.erased() || (stub.packed() && stub.style == lastStyle))
        {
            continue;
        }
        lastStyle = stub.packed() ? stub.style : lastStyle;
        live.push_back(&stub);
    }
    return live;
}
}  // namespace host::dxf
