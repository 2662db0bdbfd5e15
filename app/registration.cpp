#include "app/registration.h"

namespace
{
CString nameOrResource(const wchar_t* name, Adesk::UInt32 id, HINSTANCE module)
{
    if (name != nullptr)
    {
        return name;
    }
    const int capacity = 132;
    wchar_t buffer[capacity] = L"";
    LoadStringW(module, id, buffer, capacity);
    return buffer;
}

void addCommand(AcEdCommandStack& stack, const CommandEntry& entry, HINSTANCE module)
{
    const CString localName = nameOrResource(entry.localName, entry.localNameId, module);
    const bool session = (entry.flags & ACRX_CMD_SESSION) != 0;
    stack.addCommand(entry.groupName, entry.globalName, localName, entry.flags, entry.handler,
                     entry.context, -1, session ? nullptr : module, nullptr);
}

void deleteClass(Slots<CustomClassEntry> slots, CustomClassEntry& entry)
{
    AcRxClass* type = entry.type();
    for (auto slot = slots.begin; slot != slots.end; ++slot)
    {
        if (*slot != nullptr && (*slot)->registered && (*slot)->type()->myParent() == type)
        {
            deleteClass(slots, **slot);
        }
    }
    deleteAcRxClass(type);
    entry.registered = false;
}

// Calls action(entry, index) for each entry that is present; the index counts those entries from 0.
template <class Action>
void forEachFunction(Slots<const LispEntry> slots, Action action)
{
    short index = 0;
    for (auto slot = slots.begin; slot != slots.end; ++slot)
    {
        if (*slot != nullptr)
        {
            action(**slot, index++);
        }
    }
}
}  // namespace

void registerCommands(Slots<const CommandEntry> slots, HINSTANCE module)
{
    AcEdCommandStack* stack = acedRegCmds;
    for (auto slot = slots.begin; stack != nullptr && slot != slots.end; ++slot)
    {
        if (*slot != nullptr)
        {
            addCommand(*stack, **slot, module);
        }
    }
}

void removeCommands(Slots<const CommandEntry> slots)
{
    AcEdCommandStack* stack = acedRegCmds;
    for (auto slot = slots.begin; stack != nullptr && slot != slots.end; ++slot)
    {
        if (*slot != nullptr)
        {
            stack->removeCmd((*slot)->groupName, (*slot)->globalName);
        }
    }
}

void registerClasses(Slots<CustomClassEntry> slots)
{
    bool any = false;
    for (auto slot = slots.begin; slot != slots.end; ++slot)
    {
        if (*slot != nullptr)
        {
            (*slot)->initialise();
            (*slot)->registered = true;
            any = true;
        }
    }
    if (any)
    {
        acrxBuildClassHierarchy();
    }
}

void deleteClasses(Slots<CustomClassEntry> slots)
{
    for (auto slot = slots.begin; slot != slots.end; ++slot)
    {
        if (*slot != nullptr && (*slot)->registered)
        {
            deleteClass(slots, **slot);
        }
    }
}

void defineFunctions(Slots<const LispEntry> slots, HINSTANCE module)
{
    forEachFunction(slots,
                    [module](const LispEntry& entry, short index)
                    {
                        acedDefun(nameOrResource(entry.name, entry.nameId, module), index);
                        if (entry.registerFunction)
                        {
                            acedRegFunc(entry.function, index);
                        }
                    });
}

void undefineFunctions(Slots<const LispEntry> slots, HINSTANCE module)
{
    forEachFunction(slots, [module](const LispEntry& entry, short index)
                    { acedUndef(nameOrResource(entry.name, entry.nameId, module), index); });
}

void invokeFunction(Slots<const LispEntry> slots)
{
    const int asked = acedGetFunCode();
    forEachFunction(slots,
                    [asked](const LispEntry& entry, short index)
                    {
                        if (index == asked)
                        {
                            entry.function();
                        }
                    });
}
