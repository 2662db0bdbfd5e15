// The memory of objects, which the module makes with `new`.
#pragma once

namespace host
{
// Each line of a grid is made, packed into its stub and deleted, so the memory of a few deleted
// lines is kept for the next ones. Frees what is kept.
void freeKeptMemory();
}  // namespace host
