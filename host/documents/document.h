// An open drawing with the state that the editor keeps for it.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

#include "acdocman.h"
#include "dbmain.h"
#include "host/documents/commandhistory.h"
#include "host/documents/locks.h"
#include "host/documents/resourcestack.h"
#include "host/documents/ucshistory.h"

namespace host
{
// The open drawing. Accessors return [borrowed] parts that live as long as the document, except
// that a new path replaces the former one and its file name.
class Document final : public AcApDocument
{
public:
    // Takes the database over [adopted]. An empty path means that the drawing has no file yet.
    Document(std::unique_ptr<AcDbDatabase> database, std::filesystem::path path);

    AcDbDatabase* database() const override { return m_database.get(); }
    const ACHAR* fileName() const override { return m_fileName.c_str(); }
    AcAp::DocLockMode lockMode() const override { return m_locks.mode(); }

    const std::filesystem::path& path() const { return m_path; }
    void setPath(std::filesystem::path path);

    CommandHistory& commands() { return m_commands; }
    ResourceStack& resources() { return m_resources; }
    UcsHistory& ucsHistory() { return m_ucsHistory; }
    Locks& locks() { return m_locks; }

    // Return and set the last point that was given [wcs], from which "@" is measured.
    const AcGePoint3d& lastPoint() const { return m_lastPoint; }
    void setLastPoint(const AcGePoint3d& pointWcs) { m_lastPoint = pointWcs; }

    // Tell and set whether a block is being edited.
    bool isBlockEditor() const { return m_isBlockEditor; }
    void setBlockEditor(bool on) { m_isBlockEditor = on; }

    // Return and set the digest of the changes that the drawing's file contains. It is 0 before the
    // first call of noteSaved.
    std::uint64_t savedDigest() const { return m_savedDigest; }
    void noteSaved(std::uint64_t digest) { m_savedDigest = digest; }

private:
    std::unique_ptr<AcDbDatabase> m_database;
    std::filesystem::path m_path;
    std::wstring m_fileName;
    ResourceStack m_resources;
    UcsHistory m_ucsHistory;
    CommandHistory m_commands;
    Locks m_locks;
    AcGePoint3d m_lastPoint;
    bool m_isBlockEditor = false;
    std::uint64_t m_savedDigest = 0;
};
}  // namespace host
