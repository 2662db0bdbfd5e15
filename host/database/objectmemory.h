// Manages the memory of objects, which the module creates with `new`.
#pragma once

namespace host
{
// Frees the memory that is kept. Each line of a grid is created, packed into its stub and deleted,
// so the memory of a few deleted lines is kept for the next ones.
void freeKeptMemory();
}  // namespace host
