// Loads the library when it is first needed: with the libraries that it needs itself, it would
// otherwise take a third of the start of every run.
#include "host/program/terminal/picturelibrary.h"

#include <dlfcn.h>

#include <stdexcept>

#include "host/pictures/dialogpicture.h"
#include "host/windows/modules.h"

namespace host
{
namespace
{
// The library stays loaded until the process ends.
const PictureLibrary& load()
{
    const auto path = modulePath(nullptr).parent_path() / "libarxhost_pictures.so";
    void* const library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    const void* const table = library != nullptr ? dlsym(library, "arxhostPictures") : nullptr;
    if (table == nullptr)
    {
        throw std::runtime_error(dlerror());
    }
    return *static_cast<const PictureLibrary*>(table);
}

// Throws std::runtime_error with a line for the user if the library is missing.
const PictureLibrary& library()
{
    static const PictureLibrary& loaded = load();
    return loaded;
}
}  // namespace

namespace plot
{
bool canWrite(FileKind)
{
    return true;
}

std::unique_ptr<Ink> openInk(const Sheet& sheet)
{
    return library().openInk(sheet);
}

double textWidth(std::wstring_view text)
{
    return library().textWidth(text);
}
}  // namespace plot

Result<std::string> drawDialog(HWND dialog)
try
{
    return library().drawDialog(dialog);
}
catch (const std::runtime_error& missing)
{
    return Failure{missing.what()};
}
}  // namespace host
