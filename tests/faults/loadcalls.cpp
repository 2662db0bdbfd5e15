// Calls that can fail while the module is loaded and unloaded.
#include "accmd.h"
#include "afxwin.h"
#include "rxdict.h"
#include "rxdlinkr.h"
#include "tests/faults/callthatfails.h"

CALL_THAT_FAILS(BOOL, failInitExtension,
                "_Z22AfxInitExtensionModuleR20AFX_EXTENSION_MODULEP11HINSTANCE__",
                "AfxInitExtensionModule", (AFX_EXTENSION_MODULE & state, HMODULE module),
                (state, module), NOTHING, 0, FALSE)
CALL_THAT_FAILS(bool, failUnlock, "_ZNK4host6Linker17unlockApplicationEPv",
                "AcRxDynamicLinker::unlockApplication",
                (const AcRxDynamicLinker* self, void* packet), (self, packet), NOTHING, 0, false)
CALL_THAT_FAILS(bool, failAware, "_ZNK4host6Linker19registerAppMDIAwareEPv",
                "AcRxDynamicLinker::registerAppMDIAware",
                (const AcRxDynamicLinker* self, void* packet), (self, packet), NOTHING, 0, false)
STATUS_CALL(failAddCommand,
            "_ZN4host12CommandStack10addCommandEPKwS2_S2_iPFvvEP13AcEdUIContextiP11HINSTANCE__"
            "PP11AcEdCommand",
            "AcEdCommandStack::addCommand",
            (AcEdCommandStack * self, const ACHAR* group, const ACHAR* globalName,
             const ACHAR* localName, Adesk::Int32 flags, AcRxFunctionPtr function,
             AcEdUIContext* context, int code, HINSTANCE resources, AcEdCommand** made),
            (self, group, globalName, localName, flags, function, context, code, resources, made),
            NOTHING, Acad::eDuplicateKey, Acad::eInvalidInput, Acad::eOutOfMemory)
STATUS_CALL(failRemoveCommand, "_ZN4host12CommandStack9removeCmdEPKwS2_",
            "AcEdCommandStack::removeCmd",
            (AcEdCommandStack * self, const ACHAR* group, const ACHAR* globalName),
            (self, group, globalName), NOTHING, Acad::eKeyNotFound, Acad::eInvalidInput)

namespace
{
// The class of the host's dictionary is local to a file, so its table of virtual functions has no
// name. The module therefore gets another dictionary that passes calls on.
class Registry final : public AcRxDictionary
{
public:
    AcRxObject* at(const ACHAR* key) const override
    {
        static auto* const next = original<AcRxDictionary*()>(symbol);
        return outcomeOf(title, 1, 0, CALLER) < 0 ? next()->at(key) : nullptr;
    }

    static constexpr const char* symbol = "_Z15acrxSysRegistryv";
    static constexpr const char* title = "AcRxDictionary::at";
};

[[maybe_unused]] const bool registryIsListed =
    faults::list(Registry::title, Registry::symbol, nullptr);
}  // namespace

__attribute__((visibility("default"))) AcRxDictionary* acrxSysRegistry()
{
    static Registry registry;
    return &registry;
}
