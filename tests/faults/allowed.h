// What a run may leave behind after a fault, and why.
//
// Runs are processes of their own. What they make use of is told to all of them, so that in the
// end those rows are known that no run has needed.
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "tests/faults/blocks.h"

// Before the first process is made.
void shareAllowances();
std::vector<std::string> unusedAllowances();

// `left` lists what differs: "UCS, UCSICON".
bool mayLeave(const std::string& left);
bool mayLeak(const faults::Leak& leak);
// Whether the module may refuse to come or to go, with that word of the host.
bool mayStay(std::string_view error);
// `report` is what the host said, `calls` those that failed.
bool mayStop(const std::string& report, const std::set<std::string>& calls);
