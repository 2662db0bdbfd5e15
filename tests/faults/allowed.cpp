#include "tests/faults/allowed.h"

#include <sys/mman.h>

#include <algorithm>
#include <string_view>

#include "dbents.h"
#include "dbgroup.h"

namespace
{
struct Row
{
    const char* failedCall;
    const char* left;  // what may differ then, or how the host's report of it begins
    const char* reason;
};

const Row differences[] = {
    {"acedSetVar",             "UCSICON",   "the call that gives it back is the one that fails"},
    {"acedSetVar",             "UCSFOLLOW", "likewise"                                         },
    {"acedRestorePreviousUCS", "UCS",       "likewise"                                         },
};

// Entities and groups that found no place.
const char* const lostBytes =
    "the host may have noted the address before it refused: better a few lost bytes than a "
    "dangling one";
const Row refusals[] = {
    {"acdbHostApplicationServices",            "", lostBytes},
    {"AcDbDatabase::getBlockTable",            "", lostBytes},
    {"AcDbBlockTable::getAt",                  "", lostBytes},
    {"AcDbBlockTableRecord::appendAcDbEntity", "", lostBytes},
    {"AcDbDatabase::getGroupDictionary",       "", lostBytes},
    {"AcDbDictionary::setAt",                  "", lostBytes},
};

// The host is strict and ends the run.
const char* const outline = "arxhost: ZV_NETRAX: the AcDb2dPolyline with handle ";
const char* const keptOpen =
    "along the UCS a rectangle for the while of the call tells what lies within; without it the "
    "outline stays open for good, so that the command cannot take it back, and the frame left "
    "behind shows the draughtsman that the grid has failed";
const Row stops[] = {
    {"acdbHostApplicationServices",            outline,                    keptOpen                                                        },
    {"AcDbDatabase::getBlockTable",            outline,                    keptOpen                                                        },
    {"AcDbBlockTable::getAt",                  outline,                    keptOpen                                                        },
    {"AcDbBlockTableRecord::appendAcDbEntity", outline,                    keptOpen                                                        },
    {"AcDbObjectPointer",                      outline,                    keptOpen                                                        },
    {"AcEdCommandStack::removeCmd",
     "arxhost: kUnloadAppMsg: ",                                           "the call that takes the command away is the one that fails"    },
    {"AcRxDictionary::at",
     "arxhost: kUnloadAppMsg: ",                                           "without the stack of commands there is nothing to take it from"},
    {"acDocManager",                           "arxhost: removeReactor: ", "without the manager there is nobody to leave"                  },
};

// A byte a row, in the order of the tables.
char* used = nullptr;

const std::size_t rowCount = std::size(differences) + std::size(refusals) + std::size(stops);

const Row& rowAt(std::size_t index)
{
    if (index < std::size(differences))
    {
        return differences[index];
    }
    index -= std::size(differences);
    return index < std::size(refusals) ? refusals[index] : stops[index - std::size(refusals)];
}

// Needed is a row only where no other would do.
template <class Holds>
bool oneHolds(std::size_t first, std::size_t count, Holds holds)
{
    std::vector<std::size_t> found;
    for (std::size_t i = first; i < first + count; ++i)
    {
        if (holds(rowAt(i)))
        {
            found.push_back(i);
        }
    }
    if (found.size() == 1)
    {
        used[found.front()] = 1;
    }
    return !found.empty();
}

bool mayDiffer(std::string_view what)
{
    return oneHolds(0, std::size(differences),
                    [what](const Row& row)
                    { return what == row.left && faults::failed(row.failedCall); });
}
}  // namespace

void shareAllowances()
{
    used = static_cast<char*>(
        mmap(nullptr, rowCount, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
}

std::vector<std::string> unusedAllowances()
{
    std::vector<std::string> unused;
    for (std::size_t i = 0; i < rowCount; ++i)
    {
        if (used[i] == 0)
        {
            unused.push_back(std::string(rowAt(i).failedCall) + ' ' + rowAt(i).left);
        }
    }
    return unused;
}

bool mayLeave(const std::string& left)
{
    std::string_view rest = left;
    for (;;)
    {
        const std::size_t comma = rest.find(", ");
        if (!mayDiffer(rest.substr(0, comma)))
        {
            return false;
        }
        if (comma == rest.npos)
        {
            return true;
        }
        rest.remove_prefix(comma + 2);
    }
}

bool mayLeak(const faults::Leak& leak)
{
    const std::size_t sizes[] = {sizeof(AcDbLine), sizeof(AcDbText), sizeof(AcDb2dPolyline),
                                 sizeof(AcDbGroup)};
    return std::ranges::find(sizes, leak.size) != std::end(sizes) &&
           oneHolds(std::size(differences), std::size(refusals),
                    [](const Row& row) { return faults::failed(row.failedCall); });
}

bool mayStop(const std::string& report, const std::set<std::string>& calls)
{
    return oneHolds(std::size(differences) + std::size(refusals), std::size(stops),
                    [&](const Row& row)
                    { return calls.contains(row.failedCall) && report.starts_with(row.left); });
}
