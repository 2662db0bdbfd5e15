// The documents of the host. There is one at most.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "host/documents/document.h"

namespace host
{
class DocumentManager final : public AcApDocManager
{
public:
    DocumentManager();

    // Makes the drawing the current document and its database the working one; one that is open is
    // closed first.
    Document& open(std::unique_ptr<AcDbDatabase> database, std::filesystem::path path = {});
    void close();
    Document* document() const { return m_document.get(); }

    Acad::ErrorStatus lock(AcAp::DocLockMode mode, const ACHAR* command);
    Acad::ErrorStatus unlock(const ACHAR* command);

    // While set, no command of document context runs.
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

DocumentManager& documents();
}  // namespace host
