#include "tests/faults/scripts.h"

#include <fstream>
#include <sstream>

namespace
{
#define GRID "zv_netrax|0,0|25,15|"
#define LABELS                                                                  \
    "needText=1 bXTopScribe=1 bXBottomScribe=1 bXLeftScribe=1 bXRightScribe=1 " \
    "bYTopScribe=1 bYBottomScribe=1 bYLeftScribe=1 bYRightScribe=1 "

// The grid has two columns and one row of cells, so that every call occurs and a run is short.
const Script all[] = {
    {"loaded and unloaded", "", "zv_netrax|^C", Script::Kind::loads},
    {"cancelled at the first corner", "", "zv_netrax|^C", Script::Kind::allPairs},
    {"a large grid that is not wanted", "HorStep=0.2 VertStep=0.2", GRID "no",
     Script::Kind::allPairs},
    {"lines along the world", "", GRID "A"},
    {"lines along the UCS", "WCSBasePoint=1", GRID "A"},
    {"crosses", "LookType=1 crossSize=4", GRID "A"},
    {"labels along the world", LABELS, GRID "A"},
    {"labels along the UCS", LABELS "WCSBasePoint=1", GRID "A"},
    {"cancelled", "", GRID "^C"},
    {"drawn again and accepted", "", GRID "x|A"},
    {"two grids", "", GRID "A|" GRID "A"},
    {"a dialog with picks", "",
     "zv_netrax|S|click 110|0,0|10,0|click 124|5,5|set 107 12|click 1|0,0|25,15|A"},
    {"a dialog that is cancelled", "", "zv_netrax|S|set 107 12|click 2|^C"},
    {"a dialog that refuses", "", "zv_netrax|S|set 107 0|click 1|click 2|^C"},
    // The second line is so near to the edge that only the polygon can decide.
    {"a line along the edge", "HorStep=13.999999 WCSBasePoint=1", GRID "A"},
};
}  // namespace

std::span<const Script> scripts()
{
    return all;
}

std::deque<std::string> parted(const std::string& text, char separator)
{
    std::deque<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);)
    {
        parts.push_back(part);
    }
    return parts;
}

void writeOptions(const std::filesystem::path& folder, const Script& script)
{
    std::ofstream file(folder / "properties.ini", std::ios::binary);
    file << "[GRID]\r\nHorStep=10.0000\r\nVertStep=10.0000\r\nColor=12\r\nheightText=2.0000\r\n";
    for (const std::string& option : parted(script.options, ' '))
    {
        file << option << "\r\n";  // the last of two options with the same key is used
    }
}
