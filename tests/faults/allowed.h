// What a run may leave behind after a fault, and why.
#pragma once

#include <string>

#include "tests/faults/faults.h"

// `left` lists what differs: "UCS, UCSICON".
bool mayLeave(const std::string& left);
bool mayLeak(const faults::Leak& leak);
// `report` is what the host said, `call` the first one that failed.
bool mayStop(const std::string& report, const std::string& call);
