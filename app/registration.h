// Registers the tables of the module with the host and removes them again.
//
// Each function visits the entries in the order of their slots. The parameter module is the handle
// [borrowed] whose string resources hold the names that an entry does not spell out.
#pragma once

#include "app/tables.h"

// Adds the commands to the host's command stack. Document commands run with the resources of the
// module, session commands with the resources of the host. Without a command stack the call does
// nothing. A command that the stack refuses does not stop the loading.
void registerCommands(Slots<const CommandEntry> slots, HINSTANCE module);

// Removes the commands from the host's command stack. Without a command stack the call does
// nothing.
void removeCommands(Slots<const CommandEntry> slots);

// Creates the run-time classes of the entries and marks the entries as registered. The host
// rebuilds its class tree once afterwards, and only if there was at least one class.
void registerClasses(Slots<CustomClassEntry> slots);

// Deletes the run-time classes of the registered entries, children before their parents, and clears
// the marks.
void deleteClasses(Slots<CustomClassEntry> slots);

// Defines the LISP functions in the current drawing. The number of a function is its position among
// the entries that are present, counted from 0.
void defineFunctions(Slots<const LispEntry> slots, HINSTANCE module);

// Removes the LISP functions from the current drawing; the numbers are those of defineFunctions.
void undefineFunctions(Slots<const LispEntry> slots, HINSTANCE module);

// Calls the function whose number the host asks for. A number without an entry calls nothing.
void invokeFunction(Slots<const LispEntry> slots);
