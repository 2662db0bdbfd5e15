#include "host/documents/documentmanager.h"

#include <algorithm>
#include <utility>

#include "dbapserv.h"
#include "host/basics/breach.h"
#include "host/runtime/linker.h"
#include "host/windows/modules.h"

ACRX_DEFINE_MEMBERS(AcApDocManager, AcRxObject)
ACRX_DEFINE_MEMBERS(AcApDocManagerReactor, AcRxObject)

namespace host
{
namespace
{
Document* openNow = nullptr;
}  // namespace

Document* openDocument()
{
    return openNow;
}

DocumentManager::DocumentManager()
{
    linker().setListeners(
        [this] { return std::vector<const void*>(m_reactors.begin(), m_reactors.end()); });
}

Document& DocumentManager::open(std::unique_ptr<AcDbDatabase> database, std::filesystem::path path)
{
    close();
    auto document = std::make_unique<Document>(std::move(database), std::move(path));
    notify([&](AcApDocManagerReactor& reactor) { reactor.documentCreateStarted(document.get()); });
    m_document = std::move(document);
    openNow = m_document.get();
    acdbHostApplicationServices()->setWorkingDatabase(m_document->database());

    AcApDocument* const opened = m_document.get();
    notify([&](AcApDocManagerReactor& reactor) { reactor.documentCreated(opened); });
    notify([&](AcApDocManagerReactor& reactor) { reactor.documentToBeActivated(opened); });
    notify([&](AcApDocManagerReactor& reactor) { reactor.documentBecameCurrent(opened); });
    notify([&](AcApDocManagerReactor& reactor) { reactor.documentActivated(opened); });
    linker().setDrawingOpen(true);
    return *m_document;
}

void DocumentManager::close()
{
    if (!m_document)
    {
        return;
    }
    linker().setDrawingOpen(false);
    AcApDocument* const closing = m_document.get();
    notify([&](AcApDocManagerReactor& reactor) { reactor.documentToBeDeactivated(closing); });
    notify([&](AcApDocManagerReactor& reactor) { reactor.documentToBeDestroyed(closing); });

    const std::wstring fileName = m_document->fileName();
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    openNow = nullptr;
    m_document.reset();
    notify([&](AcApDocManagerReactor& reactor) { reactor.documentDestroyed(fileName.c_str()); });
}

void DocumentManager::notify(const Notice& notice) const
{
    // The loop runs over a copy, because a reactor may remove itself during a notification.
    for (AcApDocManagerReactor* reactor : std::vector(m_reactors))
    {
        if (std::ranges::find(m_reactors, reactor) != m_reactors.end())
        {
            notice(*reactor);
        }
    }
}

void DocumentManager::changeLock(AcAp::DocLockMode former, AcAp::DocLockMode next,
                                 const ACHAR* command, const std::function<void()>& change)
{
    Document* const document = m_document.get();
    notify([&](AcApDocManagerReactor& reactor)
           { reactor.documentLockModeWillChange(document, former, next, former, command); });
    change();
    notify([&](AcApDocManagerReactor& reactor)
           { reactor.documentLockModeChanged(document, former, next, next, command); });
}

Acad::ErrorStatus DocumentManager::lock(AcAp::DocLockMode mode, const ACHAR* command)
{
    if (!m_document)
    {
        return Acad::eNoDatabase;
    }
    changeLock(m_document->lockMode(), mode, command, [&] { m_document->locks().push(mode); });
    return Acad::eOk;
}

Acad::ErrorStatus DocumentManager::unlock(const ACHAR* command)
{
    if (!m_document || m_document->locks().depth() == 0)
    {
        breach("unlockDocument", "the document is not locked");
    }
    Locks& locks = m_document->locks();
    changeLock(locks.mode(), locks.modeBelow(), command, [&] { locks.pop(); });
    return Acad::eOk;
}

void DocumentManager::pushResourceHandle(HINSTANCE resources)
{
    if (!m_document)
    {
        breach("pushResourceHandle", "there is no document");
    }
    if (!isModule(resources))
    {
        breach("pushResourceHandle", "the handle is that of no loaded module");
    }
    m_document->resources().push(resources);
}

void DocumentManager::popResourceHandle()
{
    if (!m_document)
    {
        breach("popResourceHandle", "there is no document");
    }
    m_document->resources().pop();
}

void DocumentManager::addReactor(AcApDocManagerReactor* reactor)
{
    if (reactor == nullptr || std::ranges::find(m_reactors, reactor) != m_reactors.end())
    {
        return;
    }
    m_reactors.push_back(reactor);
}

void DocumentManager::removeReactor(AcApDocManagerReactor* reactor)
{
    std::erase(m_reactors, reactor);
}

Acad::ErrorStatus DocumentManager::lockDocument(AcApDocument* document, AcAp::DocLockMode mode,
                                                const ACHAR* globalName, const ACHAR*, bool)
{
    if (document == nullptr || document != m_document.get())
    {
        return Acad::eInvalidInput;
    }
    return lock(mode, globalName ? globalName : L"");
}

Acad::ErrorStatus DocumentManager::unlockDocument(AcApDocument* document)
{
    if (document == nullptr || document != m_document.get())
    {
        return Acad::eInvalidInput;
    }
    return unlock(L"");
}

DocumentManager& documents()
{
    static DocumentManager manager;
    return manager;
}
}  // namespace host

AcApDocManager* acDocManagerPtr()
{
    return &host::documents();
}
