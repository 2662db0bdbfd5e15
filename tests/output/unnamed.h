// Makes the host refuse to name the records of symbol tables.
#pragma once

#include "hostapi/host.h"

namespace tests
{
// While it lives, the module gets this status and no name for every record. Only one object may
// exist at a time.
class Unnamed
{
public:
    explicit Unnamed(Acad::ErrorStatus status);
    ~Unnamed();
    Unnamed(const Unnamed&) = delete;
    Unnamed& operator=(const Unnamed&) = delete;
};
}  // namespace tests
