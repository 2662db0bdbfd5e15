// Manages the host's documents, of which at most one is open.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "host/documents/document.h"

namespace host
{
// Opens, closes and locks the document and notifies the reactors of modules.
class DocumentManager final : public AcApDocManager
{
public:
    DocumentManager();

    // Makes the drawing the current document and its database the working one [adopted]. Closes a
    // document that is open first. Returns the document [borrowed], good until it is closed.
    Document& open(std::unique_ptr<AcDbDatabase> database, std::filesystem::path path = {});
    // Closes the document, if one is open.
    void close();
    // Returns the open document [borrowed], good until it is closed, or null when no document is
    // open.
    Document* document() const { return m_document.get(); }

    // Add a lock to the document and remove the newest one. `command` is the name that reactors
    // receive. lock returns eNoDatabase without a document; an unlock without its lock ends the
    // run.
    Acad::ErrorStatus lock(AcAp::DocLockMode mode, const ACHAR* command);
    Acad::ErrorStatus unlock(const ACHAR* command);

    // Sets whether calls run in application context. It is false while a command works on one
    // document.
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

// Returns the one document manager [borrowed], which lives as long as the program.
DocumentManager& documents();
// Returns documents().document() [borrowed] without a check whether the manager has been created.
// Drawing a line of a grid calls it several times.
Document* openDocument();
}  // namespace host
