// The tables of what the module registers with the host.
#pragma once

#include <cstddef>

#include "hostapi/host.h"

// One command; the names and the context are [borrowed].
struct CommandEntry
{
    const wchar_t* groupName;
    const wchar_t* globalName;
    const wchar_t* localName;  // null: the string resource localNameId holds the name
    Adesk::Int32 flags;        // a sum of ACRX_CMD_ values
    AcRxFunctionPtr handler;
    AcEdUIContext* context;
    Adesk::Int32 localNameId;  // -1: the name has no string resource
};

// One class that the module adds to the host's class tree.
struct CustomClassEntry
{
    AcRxClass* (*type)();  // returns the run-time class [borrowed]
    void (*initialise)();  // creates the run-time class
    bool registered;       // set by registerClasses, cleared by deleteClasses
};

// One LISP function.
struct LispEntry
{
    const wchar_t* name;  // [borrowed]; null: the string resource nameId holds the name
    Adesk::UInt32 nameId;
    int (*function)();
    bool registerFunction;  // false: the host sends a call only as the message kInvkSubrMsg
};

// The slots of a table [borrowed], visited from begin to end. A null slot is empty and skipped. A
// table without entries is one empty slot, because an array cannot have zero elements.
template <class Entry>
struct Slots
{
    Entry* const* begin;
    Entry* const* end;
};

// Returns the slots of a table; they are good as long as the table exists.
template <class Entry, std::size_t count>
Slots<Entry> slotsOf(Entry* const (&table)[count])
{
    const Slots<Entry> slots = {table, table + count};
    return slots;
}

// Return the slots of this module's own tables. The slots are [borrowed] as long as the module is
// loaded.
Slots<const CommandEntry> commandSlots();
Slots<CustomClassEntry> customClassSlots();
Slots<const LispEntry> lispSlots();
