#include "tests/faults/allowed.h"

#include <sys/mman.h>

#include <algorithm>
#include <iterator>
#include <string_view>

#include "dbents.h"
#include "dbgroup.h"
#include "tests/faults/faults.h"

namespace
{
enum class Kind
{
    state,    // a value is not restored; the row has its name
    memory,   // an entity or a group that was not added
    loading,  // the module cannot be loaded or unloaded; the row has the end of the host's message
    stop      // the host ends the run because of a rule; the row has the beginning of its message
};

struct Row
{
    Kind kind;
    const char* failedCall;
    const char* left;
    const char* reason;
};

const char* const lostBytes =
    "the host may have noted the address before it refused: better a few lost bytes than a "
    "dangling one";
const char* const outline = "arxhost: ZV_NETRAX: the AcDb2dPolyline with handle ";
const char* const keptOpen =
    "along the UCS a rectangle for the while of the call tells what lies within; without it the "
    "outline stays open for good, so that the command cannot take it back, and the frame left "
    "behind shows the draughtsman that the grid has failed";
const Row rows[] = {
    {Kind::state, "acedSetVar", "UCSICON", "the call that gives it back is the one that fails"},
    {Kind::state, "acedSetVar", "UCSFOLLOW", "likewise"},
    {Kind::state, "acedRestorePreviousUCS", "UCS", "likewise"},
    {Kind::memory, "acdbHostApplicationServices", "", lostBytes},
    {Kind::memory, "AcDbDatabase::getBlockTable", "", lostBytes},
    {Kind::memory, "AcDbBlockTable::getAt", "", lostBytes},
    {Kind::memory, "AcDbBlockTableRecord::appendAcDbEntity", "", lostBytes},
    {Kind::memory, "AcDbDatabase::getGroupDictionary", "", lostBytes},
    {Kind::memory, "AcDbDictionary::setAt", "", lostBytes},
    {Kind::loading, "AfxInitExtensionModule", "the module does not start",
     "it would have no resources"},
    {Kind::loading, "AcRxDynamicLinker::unlockApplication", "the module is locked",
     "the call that unlocks it is the one that fails"},
    {Kind::loading, "AcRxDictionary::at", "the module is locked",
     "without the linker there is nobody to ask"},
    {Kind::stop, "acdbHostApplicationServices", outline, keptOpen},
    {Kind::stop, "AcDbDatabase::getBlockTable", outline, keptOpen},
    {Kind::stop, "AcDbBlockTable::getAt", outline, keptOpen},
    {Kind::stop, "AcDbBlockTableRecord::appendAcDbEntity", outline, keptOpen},
    {Kind::stop, "AcDbObjectPointer", outline, keptOpen},
    {Kind::stop, "AcEdCommandStack::removeCmd",
     "arxhost: kUnloadAppMsg: ", "the call that takes the command away is the one that fails"},
    {Kind::stop, "AcRxDictionary::at",
     "arxhost: kUnloadAppMsg: ", "without the stack of commands there is nothing to take it from"},
    {Kind::stop, "acDocManager",
     "arxhost: removeReactor: ", "without the manager there is nobody to leave"},
};

// One byte for each row.
char* used = nullptr;

// A row is needed only where no other row matches.
template <class Holds>
bool oneHolds(Kind kind, Holds holds)
{
    std::vector<std::size_t> found;
    for (std::size_t i = 0; i < std::size(rows); ++i)
    {
        if (rows[i].kind == kind && holds(rows[i]))
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
    return oneHolds(Kind::state, [what](const Row& row)
                    { return what == row.left && faults::failed(row.failedCall); });
}
}  // namespace

void shareAllowances()
{
    used = static_cast<char*>(
        mmap(nullptr, std::size(rows), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
}

std::vector<std::string> unusedAllowances()
{
    std::vector<std::string> unused;
    for (std::size_t i = 0; i < std::size(rows); ++i)
    {
        if (used[i] == 0 && (rows[i].kind != Kind::memory || faults::blocksAreNoted))
        {
            unused.push_back(std::string(rows[i].failedCall) + ' ' + rows[i].left);
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
           oneHolds(Kind::memory, [](const Row& row) { return faults::failed(row.failedCall); });
}

bool mayStay(std::string_view error)
{
    return oneHolds(Kind::loading, [error](const Row& row)
                    { return error.ends_with(row.left) && faults::failed(row.failedCall); });
}

bool mayStop(const std::string& report, const std::set<std::string>& calls)
{
    return oneHolds(Kind::stop, [&](const Row& row)
                    { return calls.contains(row.failedCall) && report.starts_with(row.left); });
}
