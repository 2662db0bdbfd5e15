#include "host/runtime/commandstack.h"

#include <algorithm>

#include "host/text/foldcase.h"

ACRX_DEFINE_MEMBERS(AcEdCommand, AcRxObject)
ACRX_DEFINE_MEMBERS(AcEdCommandStack, AcRxObject)

namespace host
{
namespace
{
bool blank(const ACHAR* text)
{
    return text == nullptr || *text == 0;
}

bool clashes(const Command& command, const CommandEntry& entry)
{
    return equalNoCase(command.globalName(), entry.globalName) ||
           equalNoCase(command.localName(), entry.localName);
}
}  // namespace

Acad::ErrorStatus CommandStack::addCommand(const ACHAR* groupName, const ACHAR* globalName,
                                           const ACHAR* localName, Adesk::Int32 flags,
                                           AcRxFunctionPtr function, AcEdUIContext*, int,
                                           HINSTANCE resources, AcEdCommand** added)
{
    if (blank(groupName) || blank(globalName) || blank(localName) || function == nullptr)
    {
        return Acad::eInvalidInput;
    }
    const CommandEntry entry{groupName, globalName, localName, flags, function, resources};
    Group* into = group(groupName);
    if (into == nullptr)
    {
        into = &m_groups.emplace_front(Group{groupName, {}});
    }
    const auto clash = [&](const CommandPtr& command) { return clashes(*command, entry); };
    if (std::ranges::any_of(into->commands, clash))
    {
        return Acad::eDuplicateKey;
    }
    into->commands.push_back(std::make_shared<Command>(entry));
    if (added != nullptr)
    {
        *added = into->commands.back().get();
    }
    return Acad::eOk;
}

Acad::ErrorStatus CommandStack::removeCmd(const ACHAR* groupName, const ACHAR* globalName)
{
    if (blank(groupName) || blank(globalName))
    {
        return Acad::eInvalidInput;
    }
    Group* from = group(groupName);
    if (from == nullptr)
    {
        return Acad::eKeyNotFound;
    }
    const auto named = [&](const CommandPtr& command)
    { return equalNoCase(command->globalName(), globalName); };
    if (std::erase_if(from->commands, named) == 0)
    {
        return Acad::eKeyNotFound;
    }
    return from->commands.empty() ? removeGroup(groupName) : Acad::eOk;
}

Acad::ErrorStatus CommandStack::removeGroup(const ACHAR* groupName)
{
    if (blank(groupName))
    {
        return Acad::eInvalidInput;
    }
    const auto named = [&](const Group& group) { return equalNoCase(group.name, groupName); };
    return m_groups.remove_if(named) == 0 ? Acad::eKeyNotFound : Acad::eOk;
}

AcEdCommand* CommandStack::lookupCmd(const ACHAR* name, bool globalLookup, bool) const
{
    if (blank(name))
    {
        return nullptr;
    }
    const CommandPtr local = findLocal(name);
    return local || !globalLookup ? local.get() : findGlobal(name).get();
}

CommandPtr CommandStack::findLocal(std::wstring_view name) const
{
    for (const CommandPtr& command : all())
    {
        if (equalNoCase(command->localName(), name))
        {
            return command;
        }
    }
    return nullptr;
}

CommandPtr CommandStack::findGlobal(std::wstring_view name) const
{
    for (const CommandPtr& command : all())
    {
        if (equalNoCase(command->globalName(), name))
        {
            return command;
        }
    }
    return nullptr;
}

std::vector<CommandPtr> CommandStack::all() const
{
    std::vector<CommandPtr> commands;
    for (const Group& group : m_groups)
    {
        commands.insert(commands.end(), group.commands.begin(), group.commands.end());
    }
    return commands;
}

CommandStack::Group* CommandStack::group(std::wstring_view name)
{
    const auto found = std::ranges::find_if(
        m_groups, [&](const Group& group) { return equalNoCase(group.name, name); });
    return found == m_groups.end() ? nullptr : &*found;
}

CommandStack& commandStack()
{
    static CommandStack stack;
    return stack;
}
}  // namespace host
