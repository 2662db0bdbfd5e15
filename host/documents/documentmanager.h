// The documents of the host. At most one is open.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "host/documents/document.h"

namespace host
{
// Opens and closes the document, locks it and tells the reactors of modules.
class DocumentManager final : public AcApDocManager
{
public:
    DocumentManager();

    // Makes the drawing the current document and its database the working one [adopted]. A document
    // that is open is closed first.
    Document& open(std::unique_ptr<AcDbDatabase> database, std::filesystem::path path = {});
    // Closes the document, if one is open.
    void close();
    // The open document [borrowed]; null when there is none.
    Document* document() const { return m_document.get(); }

    // Add a lock to the document and take the newest one back; `command` is what reactors are told.
    // lock gives eNoDatabase without a document; an unlock without its lock ends the run.
    Acad::ErrorStatus lock(AcAp::DocLockMode mode, const ACHAR* command);
    Acad::ErrorStatus unlock(const ACHAR* command);

    // Notes whether a command runs that works on one document: false while it does.
    void setApplicationContext(bool set) { m_applicationContext = set; }

    AcApDocument* curDocument() const override { return m_document.get(); }
    AcApDocument* mdiActiveDocument() const override { return m_document.get(); }
    bool isApplicationContext() const override { return m_applicationContext; }
    void pushResourceHandle(HINSTANCE resources) override;
    void popResourceHandle() override;
    void addReactor(AcApDocManagerReactor* reactor) override;
    void removeReactor(AcApDocManagerReactor* reactor) override;
    Acad::ErrorStatus lockDocument(AcApDocument* document, AcAp::DocLockMode mode,
                                   const ACHAR* globalName, const ACHAR* localName,
                                   bool prompt) override;
    Acad::ErrorStatus unlockDocument(AcApDocument* document) override;

private:
    using Notice = std::function<void(AcApDocManagerReactor&)>;

    void notify(const Notice& notice) const;
    void changeLock(AcAp::DocLockMode former, AcAp::DocLockMode next, const ACHAR* command,
                    const std::function<void()>& change);

    std::unique_ptr<Document> m_document;
    std::vector<AcApDocManagerReactor*> m_reactors;
    bool m_applicationContext = true;
};

// The one document manager.
DocumentManager& documents();
}  // namespace host
