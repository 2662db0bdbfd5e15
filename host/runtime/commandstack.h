// Keeps the commands that the host and its modules have registered.
#pragma once

#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "accmd.h"

namespace host
{
// The arguments with which a command was registered; see AcEdCommandStack::addCommand.
struct CommandEntry
{
    std::wstring group;
    std::wstring globalName;
    std::wstring localName;
    Adesk::Int32 flags = 0;
    AcRxFunctionPtr function = nullptr;
    HINSTANCE resources = nullptr;
};

// A registered command. Its accessors return [borrowed] parts that live as long as the command.
class Command final : public AcEdCommand
{
public:
    explicit Command(CommandEntry entry) : m_entry(std::move(entry)) {}

    const ACHAR* globalName() const override { return m_entry.globalName.c_str(); }
    const ACHAR* localName() const override { return m_entry.localName.c_str(); }
    Adesk::Int32 commandFlags() const override { return m_entry.flags; }
    AcRxFunctionPtr functionAddr() const override { return m_entry.function; }

    const CommandEntry& entry() const { return m_entry; }
    bool has(Adesk::Int32 flag) const { return (m_entry.flags & flag) != 0; }
    // Tells whether the command has started and not ended.
    bool isRunning() const { return m_isRunning; }
    // The dispatcher alone calls this function, at the start and at the end of the command.
    void setRunning(bool isRunning) { m_isRunning = isRunning; }

private:
    CommandEntry m_entry;
    bool m_isRunning = false;
};

// A running command may be removed from the stack, so the stack shares its ownership.
using CommandPtr = std::shared_ptr<Command>;

// The command stack. Modules see it as acedRegCmds.
class CommandStack final : public AcEdCommandStack
{
public:
    Acad::ErrorStatus addCommand(const ACHAR* group, const ACHAR* globalName,
                                 const ACHAR* localName, Adesk::Int32 flags,
                                 AcRxFunctionPtr function, AcEdUIContext* context, int code,
                                 HINSTANCE resources, AcEdCommand** added) override;
    Acad::ErrorStatus removeCmd(const ACHAR* group, const ACHAR* globalName) override;
    Acad::ErrorStatus removeGroup(const ACHAR* group) override;
    AcEdCommand* lookupCmd(const ACHAR* name, bool globalLookup, bool allGroups) const override;

    // Find a command by its local name alone or by its global name alone, in any letter case.
    // Search the newest group first. Return null when no command has the name.
    CommandPtr findLocal(std::wstring_view name) const;
    CommandPtr findGlobal(std::wstring_view name) const;
    // Returns all commands: the newest group first, and within a group in the order of
    // registration.
    std::vector<CommandPtr> all() const;

private:
    struct Group
    {
        std::wstring name;
        std::vector<CommandPtr> commands;
    };

    Group* group(std::wstring_view name);

    std::list<Group> m_groups;  // newest first
};

// Returns the one command stack [borrowed], which lives as long as the program.
CommandStack& commandStack();
}  // namespace host
