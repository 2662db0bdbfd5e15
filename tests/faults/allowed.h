// Lists what a run may leave behind after a fault, and why.
//
// Each run is a separate process. The rows that a run uses are shared among all processes, so that
// in the end the rows are known that no run has needed.
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "tests/faults/blocks.h"

// Shares the record of used rows. It is called before the first process is created.
void shareAllowances();
std::vector<std::string> unusedAllowances();

// Tells whether a run may leave these differences, such as "UCS, UCSICON".
bool mayLeave(const std::string& left);
bool mayLeak(const faults::Leak& leak);
// Tells whether the module may refuse to be loaded or unloaded with that error of the host.
bool mayStay(std::string_view error);
// Tells whether the host may end the run. `report` is the host's message, `calls` are the calls
// that failed.
bool mayStop(const std::string& report, const std::set<std::string>& calls);
