#include "host/database/packing.h"

#include "host/database/entitystyle.h"

namespace host
{
AcDbObject* resolve(AcDbStub* stub)
{
    return stub->packed() ? coreOf(stub).objects().unpack(stub) : stub->object;
}

AcRxClass* typeOf(const AcDbStub* stub)
{
    if (stub->flags & AcDbStub::isLine)
    {
        return AcDbLine::desc();
    }
    return stub->object ? stub->object->isA() : nullptr;
}

namespace
{
AcDbEntity* entityOf(const AcDbStub* stub)
{
    return stub->flags & AcDbStub::isEntity ? static_cast<AcDbEntity*>(stub->object) : nullptr;
}
}  // namespace

AcDbStub* layerOf(const AcDbStub* stub)
{
    if (stub->packed())
    {
        return coreOf(stub).objects().style(stub->style).layer;
    }
    const AcDbEntity* entity = entityOf(stub);
    return entity ? entity->layerId().stub() : nullptr;
}

AcDbStub* ownerOf(const AcDbStub* stub)
{
    if (stub->packed())
    {
        return coreOf(stub).objects().style(stub->style).owner;
    }
    return stub->object ? stub->object->ownerId().stub() : nullptr;
}

std::uint32_t reactorsOf(const AcDbStub* stub)
{
    if (stub->packed())
    {
        return coreOf(stub).objects().style(stub->style).reactors;
    }
    const AcDbEntity* entity = entityOf(stub);
    return entity ? EntityStyle::reactors(*entity) : 0;
}

namespace
{
std::string nameOf(const AcRxClass& type)
{
    const std::wstring name = type.name();
    return std::string(name.begin(), name.end());
}
}  // namespace

std::string describe(const AcDbObject& object)
{
    const AcDbStub* stub = object.objectId().stub();
    return stub != nullptr ? describe(*stub) : nameOf(*object.isA()) + " that is not in a database";
}

std::string describe(const AcDbStub& stub)
{
    char handle[40];
    std::snprintf(handle, sizeof handle, " with handle %llX",
                  static_cast<unsigned long long>(stub.handle()));
    return nameOf(*typeOf(&stub)) + handle;
}
}  // namespace host
