#include <algorithm>

#include "dbents.h"
#include "host/database/objectstate.h"
#include "host/database/packing.h"
#include "host/basics/breach.h"

ACRX_DEFINE_MEMBERS(AcDbObject, AcRxObject)

const AcDbObjectId AcDbObjectId::kNull;

bool AcDbObjectId::isErased() const
{
    return m_stub != nullptr && m_stub->erased();
}

AcDbDatabase* AcDbObjectId::database() const
{
    return m_stub != nullptr ? &host::coreOf(m_stub).database() : nullptr;
}

AcDbObject::AcDbObject()
    : m_stub(nullptr),
      m_owner(nullptr),
      m_readers(0),
      m_forWrite(true),
      m_forgiveClose(false),
      m_refused(false),
      m_released(false),
      m_changed(true)
{
}

namespace
{
// Every line of a grid needs the calls below several times. The texts of a breach would make each
// of them save registers and set up a large frame, so a breach is built in a function of its own
// that is never inlined.
[[noreturn, gnu::noinline]] void breachOf(const AcDbObject& object, const char* call,
                                          const char* what)
{
    host::breach(call, "the " + host::describe(object) + what);
}

[[noreturn, gnu::noinline]] void breachOfOwner()
{
    host::breach("AcDbObject::~AcDbObject", "an object that belongs to a database was deleted");
}
}  // namespace

AcDbObject::~AcDbObject()
{
    if (m_stub != nullptr && !m_released)
    {
        breachOfOwner();
    }
}

AcDbObjectId AcDbObject::objectId() const
{
    return AcDbObjectId(m_stub);
}
AcDbObjectId AcDbObject::ownerId() const
{
    return AcDbObjectId(m_owner);
}
AcDbDatabase* AcDbObject::database() const
{
    return objectId().database();
}
bool AcDbObject::isErased() const
{
    return m_stub != nullptr && m_stub->erased();
}
bool AcDbObject::isReadEnabled() const
{
    return m_forWrite || m_readers > 0;
}
bool AcDbObject::isWriteEnabled() const
{
    return m_forWrite;
}

void AcDbObject::assertReadEnabled(const char* call) const
{
    if (!isReadEnabled())
    {
        breachOf(*this, call, " is not open");
    }
}

void AcDbObject::assertWriteEnabled(const char* call) const
{
    if (!m_forWrite)
    {
        breachOf(*this, call, " is not open for write");
    }
    m_changed = true;
}

namespace
{
bool onLockedLayer(const AcDbStub* stub)
{
    const AcDbStub* layer = host::layerOf(stub);
    return layer != nullptr && layer->object != nullptr &&
           static_cast<AcDbLayerTableRecord*>(layer->object)->isLocked();
}
}  // namespace

Acad::ErrorStatus AcDbObject::upgradeOpen()
{
    if (m_forWrite)
    {
        return Acad::eWasOpenForWrite;
    }
    assertReadEnabled("AcDbObject::upgradeOpen");
    if (m_readers > 1)
    {
        return Acad::eHadMultipleReaders;
    }
    if (onLockedLayer(m_stub))
    {
        m_refused = true;
        return Acad::eOnLockedLayer;
    }
    m_readers = 0;
    m_forWrite = true;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbObject::downgradeOpen()
{
    assertReadEnabled("AcDbObject::downgradeOpen");
    if (m_stub == nullptr)
    {
        return Acad::eNotInDatabase;
    }
    if (!m_forWrite)
    {
        return Acad::eWasOpenForRead;
    }
    m_forWrite = false;
    m_readers = 1;
    return Acad::eOk;
}

namespace
{
[[gnu::noinline]] void alignText(AcDbObject& object)
{
    if (AcDbText* text = AcDbText::cast(&object))
    {
        text->adjustAlignment();
    }
}
}  // namespace

Acad::ErrorStatus AcDbObject::close()
{
    if (m_stub == nullptr)
    {
        return Acad::eNotInDatabase;
    }
    if (!isReadEnabled())
    {
        if (!m_forgiveClose)
        {
            breachOf(*this, "AcDbObject::close", " is already closed");
        }
        m_forgiveClose = false;
        return Acad::eNotOpenForWrite;
    }
    if (m_readers > 1)
    {
        --m_readers;
        return Acad::eOk;
    }
    const std::uint32_t kind = m_stub->flags & (AcDbStub::isEntity | AcDbStub::isLine);
    if (m_forWrite && kind == AcDbStub::isEntity)
    {
        alignText(*this);
    }
    m_readers = 0;
    m_forWrite = false;
    m_refused = false;
    host::DatabaseCore& core = host::coreOf(m_stub);
    core.open().remove(*this);
    if (kind & AcDbStub::isLine)
    {
        core.objects().pack(static_cast<AcDbLine*>(this));
    }
    return Acad::eOk;
}

Acad::ErrorStatus AcDbObject::erase(Adesk::Boolean erasing)
{
    if (m_stub == nullptr)
    {
        return Acad::eNotInDatabase;
    }
    const bool changed = m_changed;
    assertWriteEnabled("AcDbObject::erase");
    m_changed = changed;  // only the stub knows that the object is erased
    if (m_stub->erased() == (erasing != Adesk::kFalse))
    {
        m_refused = true;
        return Acad::eWasErased;
    }
    host::coreOf(m_stub).undoLog().erase(m_stub, erasing != Adesk::kFalse);
    return Acad::eOk;
}

namespace
{
Acad::ErrorStatus mayOpen(const AcDbObject& object, AcDb::OpenMode mode, bool openOnLockedLayer)
{
    const Acad::ErrorStatus status = host::ObjectState::mayOpen(object, mode);
    const AcDbStub* stub = object.objectId().stub();
    const bool asksLayer = status == Acad::eOk && mode == AcDb::kForWrite && !openOnLockedLayer &&
                           (stub->flags & AcDbStub::isEntity) != 0;
    return asksLayer && onLockedLayer(stub) ? Acad::eOnLockedLayer : status;
}

void markOpen(AcDbObject& object, AcDb::OpenMode mode)
{
    if (host::ObjectState::open(object, mode))
    {
        host::coreOf(object.objectId().stub()).open().add(object);
    }
}
}  // namespace

Acad::ErrorStatus host::openUnpacked(AcDbStub* stub, AcDb::OpenMode mode)
{
    const Acad::ErrorStatus status = mayOpen(*stub->object, mode, false);
    if (status == Acad::eOk)
    {
        markOpen(*stub->object, mode);
    }
    return status;
}

Acad::ErrorStatus acdbOpenOfClass(AcDbObject*& object, AcDbObjectId id, AcRxClass* type,
                                  AcDb::OpenMode mode, bool openErased, bool openOnLockedLayer)
{
    object = nullptr;
    AcDbStub* stub = id.stub();
    if (stub == nullptr)
    {
        return Acad::eNullObjectId;
    }
    if (stub->erased() && !openErased)
    {
        return Acad::eWasErased;
    }
    const AcRxClass* actual = host::typeOf(stub);
    if (actual == nullptr)
    {
        return host::StubArena::isGone(stub) ? Acad::ePermanentlyErased : Acad::eNotImplementedYet;
    }
    if (!actual->isDerivedFrom(type))
    {
        return Acad::eNotThatKindOfClass;
    }
    const bool wasPacked = stub->packed();
    AcDbObject* found = host::resolve(stub);
    const Acad::ErrorStatus status = mayOpen(*found, mode, openOnLockedLayer);
    if (status == Acad::eOk)
    {
        markOpen(*found, mode);
        object = found;
    }
    else if (wasPacked)
    {
        host::coreOf(stub).objects().pack(static_cast<AcDbLine*>(found));
    }
    return status;
}

Acad::ErrorStatus acdbOpenAcDbObject(AcDbObject*& object, AcDbObjectId id, AcDb::OpenMode mode,
                                     bool openErased)
{
    return acdbOpenOfClass(object, id, AcDbObject::desc(), mode, openErased, false);
}

Acad::ErrorStatus acdbOpenAcDbEntity(AcDbEntity*& entity, AcDbObjectId id, AcDb::OpenMode mode,
                                     bool openErased)
{
    return acdbOpenObject(entity, id, mode, openErased);
}
