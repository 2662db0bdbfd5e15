#include "axlock.h"

#include "host/documents/documentmanager.h"

AcAxDocLock::AcAxDocLock(DocLockType)
{
    lock(nullptr);
}

AcAxDocLock::AcAxDocLock(const AcDbObjectId& id, DocLockType)
{
    lock(id.database());
}

AcAxDocLock::AcAxDocLock(AcDbDatabase* database, DocLockType)
{
    lock(database);
}

AcAxDocLock::~AcAxDocLock()
{
    if (m_status == Acad::eOk)
    {
        host::documents().unlockDocument(m_document);
    }
}

void AcAxDocLock::lock(AcDbDatabase* database)
{
    m_document = host::documents().curDocument();
    const bool holds = m_document && (!database || m_document->database() == database);
    m_status = holds ? host::documents().lock(AcAp::kWrite, L"") : Acad::eNoDatabase;
}
