// What the module registers with the host.
#pragma once

#include <cstddef>

#include "hostapi/host.h"

struct CommandEntry
{
    const wchar_t* groupName;
    const wchar_t* globalName;
    const wchar_t* localName;  // null: the string resource localNameId
    Adesk::Int32 flags;
    AcRxFunctionPtr handler;
    AcEdUIContext* context;
    Adesk::Int32 localNameId;  // -1 for none
};

struct CustomClassEntry
{
    AcRxClass* (*type)();
    void (*initialise)();  // makes the run-time class
    bool registered;
};

struct LispEntry
{
    const wchar_t* name;  // null: the string resource nameId
    Adesk::UInt32 nameId;
    int (*function)();
    bool registerFunction;  // else the host only hands the call on as a message
};

// The slots of a table, walked from begin to end. A null slot is empty and skipped, so that a table
// of no entries is one empty slot: an array cannot have none.
template <class Entry>
struct Slots
{
    Entry* const* begin;
    Entry* const* end;
};

template <class Entry, std::size_t count>
Slots<Entry> slotsOf(Entry* const (&table)[count])
{
    const Slots<Entry> slots = {table, table + count};
    return slots;
}

// The tables of this module.
Slots<const CommandEntry> commandSlots();
Slots<CustomClassEntry> customClassSlots();
Slots<const LispEntry> lispSlots();
