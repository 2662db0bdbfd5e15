// An open drawing with what the editor keeps for it.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "acdocman.h"
#include "dbmain.h"
#include "host/database/undo.h"
#include "host/documents/resourcestack.h"
#include "host/documents/ucshistory.h"

namespace host
{
// The state that a command found when it started. Undoing the command returns to it.
struct UndoStep
{
    std::wstring command;
    UndoMark objects;
    DrawingState state;
    UcsHistory ucsHistory;
};

// A command that was undone, and the state that it had left.
struct RedoStep
{
    UndoStep step;
    UndoneChanges objects;
    DrawingState state;
    UcsHistory ucsHistory;
};

// The open drawing.
class Document final : public AcApDocument
{
public:
    // Takes the database over [adopted]. An empty path means that the drawing has no file yet.
    Document(std::unique_ptr<AcDbDatabase> database, std::filesystem::path path);

    AcDbDatabase* database() const override { return m_database.get(); }
    const ACHAR* fileName() const override { return m_fileName.c_str(); }
    AcAp::DocLockMode lockMode() const override;

    const std::filesystem::path& path() const { return m_path; }
    void setPath(std::filesystem::path path);

    ResourceStack resources;
    UcsHistory ucsHistory;
    std::vector<UndoStep> undo;
    std::vector<RedoStep> redo;  // until something else is done
    AcGePoint3d lastPoint;       // [wcs]; "@" counts from it
    bool blockEditor = false;    // a block is being edited
    std::vector<AcAp::DocLockMode> locks;
    std::uint64_t savedDigest = 0;  // of the changes that its file holds

private:
    std::unique_ptr<AcDbDatabase> m_database;
    std::filesystem::path m_path;
    std::wstring m_fileName;
};
}  // namespace host
