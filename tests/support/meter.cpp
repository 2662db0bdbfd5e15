#include "tests/support/meter.h"

#include "rxmfcapi.h"
#include "tests/app/original.h"

// The functions at the end replace the host's in the test program. Without a Meter they pass each
// call on.
namespace
{
tests::Meter* current = nullptr;
}  // namespace

namespace tests
{
Meter::Meter()
{
    current = this;
}
Meter::~Meter()
{
    current = nullptr;
}
}  // namespace tests

int acedSetStatusBarProgressMeter(const ACHAR* label, int minimum, int maximum)
{
    if (current == nullptr)
    {
        return original<int(const ACHAR*, int, int)>("_Z29acedSetStatusBarProgressMeterPKwii")(
            label, minimum, maximum);
    }
    current->label = label;
    current->minimum = minimum;
    current->maximum = maximum;
    ++current->started;
    if (current->look)
    {
        current->look();
    }
    return 0;
}

int acedSetStatusBarProgressMeterPos(int position)
{
    if (current == nullptr)
    {
        return original<int(int)>("_Z32acedSetStatusBarProgressMeterPosi")(position);
    }
    current->positions.push_back(position);
    return 0;
}

void acedRestoreStatusBar()
{
    if (current == nullptr)
    {
        return original<void()>("_Z20acedRestoreStatusBarv")();
    }
    ++current->restored;
}
