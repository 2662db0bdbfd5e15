// Why a module is loaded.
#pragma once

namespace AcadApp
{
enum LoadReasons
{
    kOnProxyDetection = 1,
    kOnAutoCADStartup = 2,
    kOnCommandInvocation = 4,
    kOnLoadRequest = 8,
    kLoadDisabled = 0x10
};
}  // namespace AcadApp
