#include "host/dxf/release.h"

#include <algorithm>
#include <iterator>

namespace host::dxf
{
namespace
{
// clang-format off
constexpr Release releases[] = {
    {"AC1009", "R12",   false, false, false, false},
    {"AC1012", "R13",   true,  false, false, false},
    {"AC1014", "R14",   true,  false, false, false},
    {"AC1015", "R2000", true,  true,  false, false},
    {"AC1018", "R2004", true,  true,  true,  false},
    {"AC1021", "R2007", true,  true,  true,  true},
    {"AC1024", "R2010", true,  true,  true,  true},
    {"AC1027", "R2013", true,  true,  true,  true},
    {"AC1032", "R2018", true,  true,  true,  true},
};
// clang-format on
}  // namespace

const Release* findRelease(std::string_view version)
{
    const auto* found = std::ranges::find(releases, version, &Release::version);
    return found != std::end(releases) ? found : nullptr;
}
}  // namespace host::dxf
