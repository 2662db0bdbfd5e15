// Carrying the tables of the module to the host and back.
//
// Entries are taken in the order of their slots. module is the handle whose string resources hold
// the names that an entry does not spell out.
#pragma once

#include "app/tables.h"

// Commands run with the resources of the module, session commands with the host's. A host without a
// command stack gets none; what the stack answers does not stop the loading.
void registerCommands(Slots<const CommandEntry> slots, HINSTANCE module);
void removeCommands(Slots<const CommandEntry> slots);

// The host rebuilds its class tree once, and only when there was a class.
void registerClasses(Slots<CustomClassEntry> slots);

// Deletes the run-time classes of the marked entries, children before their parents.
void deleteClasses(Slots<CustomClassEntry> slots);

// A function's number counts the present entries from 0.
void defineFunctions(Slots<const LispEntry> slots, HINSTANCE module);
void undefineFunctions(Slots<const LispEntry> slots, HINSTANCE module);

// Calls the function that the host asks for; none if there is no such number.
void invokeFunction(Slots<const LispEntry> slots);
