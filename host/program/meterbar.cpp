#include "host/program/meterbar.h"

#include <algorithm>

#include "host/text/numbers.h"
#include "host/windows/text.h"

namespace host
{
namespace
{
const int widestBar = 40;

int percentOf(const Meter& meter)
{
    const double length = double(meter.most) - meter.least;
    const double done = double(meter.position) - meter.least;
    return length > 0 ? int(100 * std::clamp(done / length, 0.0, 1.0)) : 100;
}
}  // namespace

std::string meterBar(const Meter& meter, int columns)
{
    const std::wstring label(trimmed(meter.label));
    const int percent = percentOf(meter);
    const int width = std::min(widestBar, columns - 1 - int(label.size()) - 8);
    if (width <= 0)
    {
        return std::to_string(percent) + "%";
    }
    const int full = width * percent / 100;
    return toUtf8(label) + " [" + std::string(full, '#') + std::string(width - full, '.') + "] " +
           std::to_string(percent) + "%";
}
}  // namespace host
