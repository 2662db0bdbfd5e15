// The reasons why a module is loaded.
#pragma once

namespace AcadApp
{
// The reasons are bits, which a registry entry or a package combines. This host loads a module on
// request and reads no such entry, so every reason has the same effect here.
enum LoadReasons
{
    kOnProxyDetection = 1,     // a drawing holds an object of the module
    kOnAutoCADStartup = 2,     // the host starts
    kOnCommandInvocation = 4,  // a command of the module is typed
    kOnLoadRequest = 8,        // the user or another module asks for it
    kLoadDisabled = 0x10       // the module is never loaded
};
}  // namespace AcadApp
