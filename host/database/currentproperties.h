// The properties that a new entity gets unless they were set on it.
#pragma once

#include <cstdint>

class AcDbStub;

namespace host
{
struct CurrentProperties
{
    AcDbStub* layer = nullptr;
    AcDbStub* textStyle = nullptr;
    AcDbStub* linetype = nullptr;
    std::uint16_t color = 256;
    std::int16_t lineWeight = -1;
    double linetypeScale = 1;
};
}  // namespace host
