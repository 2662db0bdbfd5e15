#include "tests/faults/run.h"

#include <cstring>
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
};

State stateNow()
{
    const host::Document& document = *host::documents().document();
    const host::DrawingState& drawing = document.database()->core().state;
    return {drawing.modelUcs.toWorld,
            drawing.ucsIcon,
            drawing.ucsFollow,
            AcGeContext::gTol.equalPoint(),
            AcGeContext::gTol.equalVector(),
            document.resources.depth()};
}

// What the run has left otherwise than it found it.
std::string differences(const State& before, const State& after)
{
    const std::pair<const char*, bool> rows[] = {
        {"UCS",                                                                            std::memcmp(&before.ucs, &after.ucs, sizeof before.ucs) != 0},
        {"UCSICON",                                                         before.icon != after.icon                                                                               },
        {"UCSFOLLOW",before.follow != after.follow},
        {"tolerance",
         before.equalPoint != after.equalPoint || before.equalVector != after.equalVector                                                                                                                                     },
        {"resource handles", before.resources != after.resources},
    };
    std::string list;
    for (const auto& [name, differs] : rows)
    {
        list += differs ? std::string(list.empty() ? "" : ", ") + name : "";
    }
    return list;
}

// Gives what still hangs on it to the host: the progress meter that is left.
std::optional<host::Meter> type(const Script& script)
{
    support::Typist typist;
    typist.lines = parted(script.answers, '|');
    host::Editor editor(typist, false);
    host::runCommands(editor);
    return editor.meter;
}

bool hasCommand()
{
    return host::commandStack().lookupCmd(L"ZV_NETRAX", true, true) != nullptr;
}

// A module that is refused, or stays locked, is no fault of its own when a call has failed.
std::string complaintsOfLoading(const std::optional<std::string>& error)
{
    return error && faults::failures().empty() ? *error + "\n" : "";
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

void openDrawing()
{
    host::registerHostCommands();
    host::documents().open(host::newDrawing());
    // Neither is what a run sets, so one that is not given back is seen.
    host::DrawingState& state = host::documents().document()->database()->core().state;
    state.modelUcs.toWorld = AcGeMatrix3d::rotation(0.5, AcGeVector3d::kZAxis);
    state.modelUcs.toWorld.setTranslation(AcGeVector3d(3, 4, 0));
    state.ucsFollow = 1;
}

std::string loadModule()
{
    if (const auto error = host::linker().load(moduleFile))
    {
        return *error;
    }
    return hasCommand() ? "" : "the module has no command";
}

std::string runOnce(const Script& script, const faults::Plan& plan)
{
    const bool loads = script.kind == Script::Kind::loads;
    const State before = stateNow();
    faults::begin(plan);
    std::string complaints;
    if (loads)
    {
        complaints += complaintsOfLoading(host::linker().load(moduleFile));
    }
    const bool meterIsLeft = type(script).has_value();
    const std::string left = differences(before, stateNow());
    if (!left.empty() && !mayLeave(left))
    {
        complaints += "left otherwise: " + left + "\n";
    }
    if (meterIsLeft)
    {
        complaints += "the progress meter is still shown\n";
    }
    if (loads)
    {
        complaints += complaintsOfLoading(host::linker().unload("netrax.arx"));
    }
    host::documents().close();
    if (loads)
    {
        host::linker().unloadAll();
        complaints += hasCommand() ? "the command is still there\n" : "";
    }
    return complaints + complaintsOfLeaks();
}
