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
struct CommandEntry
{
    std::wstring group;
    std::wstring globalName;
    std::wstring localName;
    Adesk::Int32 flags = 0;
    AcRxFunctionPtr function = nullptr;
    HINSTANCE resources = nullptr;
};

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
    // Set by the dispatcher: the command has been started and not ended yet.
    bool running = false;

private:
    CommandEntry m_entry;
};

// A command that is running outlives its removal, hence the shared ownership.
using CommandPtr = std::shared_ptr<Command>;

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

    // By local name, or by global name alone. The newest group is searched first.
    CommandPtr findLocal(std::wstring_view name) const;
    CommandPtr findGlobal(std::wstring_view name) const;
    // In the order of groups and of registration.
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

CommandStack& commandStack();
}  // namespace host
