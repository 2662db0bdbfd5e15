#include "app/tables.h"

#include "app/gridapp.h"
#include "command/gridcommand.h"

namespace
{
void runGridCommand()
{
    gridCommand(gridApp().moduleHandle());
}

const Adesk::Int32 gridCommandFlags =
    ACRX_CMD_TRANSPARENT | ACRX_CMD_NOPAPERSPACE | ACRX_CMD_NOBEDIT;

const CommandEntry gridCommandEntry = {
    L"Obrenta", L"zv_netrax", L"zv_netrax", gridCommandFlags, runGridCommand, nullptr, -1,
};

const CommandEntry* const commandTable[] = {&gridCommandEntry};
CustomClassEntry* const customClassTable[] = {nullptr};
const LispEntry* const lispTable[] = {nullptr};
}  // namespace

Slots<const CommandEntry> commandSlots()
{
    return slotsOf(commandTable);
}

Slots<CustomClassEntry> customClassSlots()
{
    return slotsOf(customClassTable);
}

Slots<const LispEntry> lispSlots()
{
    return slotsOf(lispTable);
}
