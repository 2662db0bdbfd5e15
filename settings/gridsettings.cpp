#include "settings/gridsettings.h"

#include "settings/options.h"

namespace
{
struct SetDefault
{
    GridSettings& settings;

    template <class Row>
    void operator()(const Row& option) const
    {
        settings.*option.member = option.standard;
    }
};
}  // namespace

GridSettings::GridSettings() : textStyleName(L"Standard"), basePoint(0.0, 0.0, 0.0)
{
    const SetDefault setDefault = {*this};
    forEachOption(setDefault);
}
