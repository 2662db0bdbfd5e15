// Records of symbol tables whose names the host does not tell.
#pragma once

#include "hostapi/host.h"

namespace tests
{
// While it lives, the module gets no name of any record, and this status; one at a time.
class Unnamed
{
public:
    explicit Unnamed(Acad::ErrorStatus status);
    ~Unnamed();
    Unnamed(const Unnamed&) = delete;
    Unnamed& operator=(const Unnamed&) = delete;
};
}  // namespace tests
