#include "tests/settings/misleadingcolors.h"

#include <optional>

#include "acui.h"
#include "tests/app/original.h"

namespace
{
std::optional<int> misleading;
}  // namespace

MisleadingColors::MisleadingColors(int answer)
{
    misleading = answer;
}

MisleadingColors::~MisleadingColors()
{
    misleading.reset();
}

// In the place of the host's function.
int CAcUiColorComboBox::AddColorToMRU(int colorIndex)
{
    const int place = original<int(CAcUiColorComboBox*, int)>(
        "_ZN18CAcUiColorComboBox13AddColorToMRUEi")(this, colorIndex);
    return misleading.value_or(place);
}
