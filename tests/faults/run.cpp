#include "tests/faults/run.h"

#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <iterator>
#include <optional>
#include <utility>

#include "host/documents/documentmanager.h"
#include "host/dxf/drawingfile.h"
#include "host/editor/commands.h"
#include "host/editor/editor.h"
#include "host/editor/hostcommands.h"
#include "host/runtime/linker.h"
#include "tests/faults/allowed.h"
#include "tests/support/session.h"

namespace
{
const char* const moduleFile = "./netrax.arx";

struct State
{
    AcGeMatrix3d ucs;
    int icon;
    int follow;
    double equalPoint;
    double equalVector;
    std::size_t resources;
    std::ptrdiff_t openFiles;
};

// The state at the start of the run, while its drawing is open.
std::optional<State> atFirst;

State stateNow()
{
    host::Document& document = *host::documents().document();
    const host::DrawingState& drawing = host::coreOf(*document.database()).state();
    return {drawing.modelUcs.toWorld,
            drawing.ucsIcon,
            drawing.ucsFollow,
            AcGeContext::gTol.equalPoint(),
            AcGeContext::gTol.equalVector(),
            document.resources().depth(),
            std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {})};
}

// Returns the differences between the states before and after the run, except those that are
// allowed.
std::string complaintsOfState()
{
    const State& before = *atFirst;
    const State after = stateNow();
    const std::pair<const char*, bool> rows[] = {
        {"UCS", std::memcmp(&before.ucs, &after.ucs, sizeof before.ucs) != 0},
        {"UCSICON", before.icon != after.icon},
        {"UCSFOLLOW", before.follow != after.follow},
        {"tolerance",
         before.equalPoint != after.equalPoint || before.equalVector != after.equalVector},
        {"resource handles", before.resources != after.resources},
        {"open files", before.openFiles != after.openFiles},
    };
    std::string list;
    for (const auto& [name, differs] : rows)
    {
        list += differs ? std::string(list.empty() ? "" : ", ") + name : "";
    }
    return list.empty() || mayLeave(list) ? "" : "left otherwise: " + list + "\n";
}

// Types the script's lines and returns the progress meter that is left.
std::optional<host::Meter> type(const Script& script)
{
    support::Typist typist;
    typist.lines = parted(script.answers, '|');
    host::Editor editor(typist, false);
    host::runCommands(editor);
    return editor.meter();
}

bool hasCommand()
{
    return host::commandStack().lookupCmd(L"ZV_NETRAX", true, true) != nullptr;
}

std::string complaintsOfLoading(const host::Result<>& result)
{
    return !result && !mayStay(result.failure().line) ? result.failure().line + "\n" : "";
}

std::string complaintsOfLeaks()
{
    std::string complaints;
    for (const faults::Leak& leak : faults::leaks())
    {
        if (!mayLeak(leak))
        {
            complaints += "a block of " + std::to_string(leak.size) + " bytes, made after call " +
                          std::to_string(leak.call) + ", is lost\n";
        }
    }
    return complaints;
}
}  // namespace

// The host calls this function to end a run that breaks a rule. Everything else must be in order
// even then.
extern "C" __attribute__((visibility("default"))) void _Exit(int status) noexcept
{
    const std::string complaints = atFirst ? complaintsOfState() : "";
    std::fputs(complaints.c_str(), stderr);
    _exit(complaints.empty() ? status : 4);
}

void openDrawing()
{
    host::registerHostCommands();
    host::documents().open(host::newDrawing());
    // These values differ from those that a run sets, so a value that is not restored is noticed.
    host::DrawingState& state = host::coreOf(*host::documents().document()->database()).state();
    state.modelUcs.toWorld =
        AcGeMatrix3d::rotation(0.5, AcGeVector3d::kZAxis).setTranslation(AcGeVector3d(3, 4, 0));
    state.ucsFollow = 1;
}

std::string loadModule()
{
    if (const host::Result<> loaded = host::linker().load(moduleFile); !loaded)
    {
        return loaded.failure().line;
    }
    return hasCommand() ? "" : "the module has no command";
}

std::string runOnce(const Script& script, const faults::Plan& plan)
{
    const bool loads = script.kind == Script::Kind::loads;
    atFirst = stateNow();
    faults::begin(plan);
    std::string complaints;
    bool came = false;
    if (loads)
    {
        const host::Result<> loaded = host::linker().load(moduleFile);
        complaints += complaintsOfLoading(loaded);
        came = bool(loaded);
    }
    const bool meterIsLeft = type(script).has_value();
    complaints += complaintsOfState();
    if (meterIsLeft)
    {
        complaints += "the progress meter is still shown\n";
    }
    if (loads && came)
    {
        complaints += complaintsOfLoading(host::linker().unload("netrax.arx"));
    }
    atFirst.reset();
    host::documents().close();
    if (loads)
    {
        host::linker().unloadAll();
        complaints += hasCommand() ? "the command is still there\n" : "";
    }
    return complaints + complaintsOfLeaks();
}
