// The commands that the host and its modules have registered.
#pragma once

#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "accmd.h"

namespace host
{
// What a command was registered with; see AcEdCommandStack::addCommand.
struct CommandEntry
{
    std::wstring group;
    std::wstring globalName;
    std::wstring localName;
    Adesk::Int32 flags = 0;
    AcRxFunctionPtr function = nullptr;
    HINSTANCE resources = nullptr;
};

// A registered command.
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
    // True from the start of the command to its end; the dispatcher sets it.
    bool running = false;

private:
    CommandEntry m_entry;
};

// The ownership is shared because a command that is running outlives its removal.
using CommandPtr = std::shared_ptr<Command>;

// The stack that modules see as acedRegCmds.
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

    // Finds a command by its local name, or by its global name alone, in any letter case. The
    // newest group is searched first. Null when there is no such command.
    CommandPtr findLocal(std::wstring_view name) const;
    CommandPtr findGlobal(std::wstring_view name) const;
    // All commands: the newest group first, and in a group the first registered first.
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

// The one command stack.
CommandStack& commandStack();
}  // namespace host
