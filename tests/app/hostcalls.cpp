#include "tests/app/hostcalls.h"

#include <cwchar>
#include <sstream>
#include <utility>

#include "tests/app/original.h"

// The functions at the end replace the host's in the whole test program, because the program comes
// before the host's library. Without a HostCalls they pass each call on.
namespace
{
HostCalls* current = nullptr;

template <class... Arguments>
void note(const Arguments&... arguments)
{
    std::wostringstream text;
    std::size_t left = sizeof...(arguments);
    ((text << arguments << (--left > 0 ? L" " : L"")), ...);
    current->note(text.str());
}

class Linker : public AcRxDynamicLinker
{
public:
    bool loadModule(const ACHAR*, bool, bool) override { return false; }
    bool unloadModule(const ACHAR*, bool) override { return false; }
    bool loadApp(const ACHAR*, AcadApp::LoadReasons, bool, bool) override { return false; }
    bool lockApplication(void*) const override { return false; }
    bool unlockApplication(void* packet) const override
    {
        note(L"unlockApplication", packet);
        return true;
    }
    bool isApplicationLocked(const ACHAR*) const override { return false; }
    bool registerAppMDIAware(void* packet) const override
    {
        note(L"registerAppMDIAware", packet);
        return true;
    }
    bool isAppMDIAware(const ACHAR*) const override { return false; }
};

class CommandStack : public AcEdCommandStack
{
public:
    Acad::ErrorStatus addCommand(const ACHAR* group, const ACHAR* global, const ACHAR* local,
                                 Adesk::Int32 flags, AcRxFunctionPtr function,
                                 AcEdUIContext* context, int code, HINSTANCE resources,
                                 AcEdCommand** made) override
    {
        note(L"addCommand", group, global, local, flags, reinterpret_cast<void*>(function),
             static_cast<const void*>(context), code, static_cast<const void*>(resources),
             static_cast<const void*>(made));
        return Acad::eDuplicateKey;  // what the stack says does not stop the loading
    }
    Acad::ErrorStatus removeCmd(const ACHAR* group, const ACHAR* global) override
    {
        note(L"removeCmd", group, global);
        return Acad::eKeyNotFound;
    }
    Acad::ErrorStatus removeGroup(const ACHAR*) override { return Acad::eKeyNotFound; }
    AcEdCommand* lookupCmd(const ACHAR*, bool, bool) const override { return nullptr; }
};

class Registry : public AcRxDictionary
{
public:
    AcRxObject* at(const ACHAR* key) const override
    {
        if (current->registryIsEmpty)
        {
            return nullptr;
        }
        if (std::wcscmp(key, L"DynamicLinker") == 0)
        {
            return &m_linker;
        }
        return std::wcscmp(key, L"ACAD_REGISTERED_COMMANDS") == 0 ? &m_commands : nullptr;
    }

private:
    mutable Linker m_linker;
    mutable CommandStack m_commands;
};

class DocumentManager : public AcApDocManager
{
public:
    AcApDocument* curDocument() const override { return nullptr; }
    AcApDocument* mdiActiveDocument() const override { return nullptr; }
    bool isApplicationContext() const override { return false; }
    void pushResourceHandle(HINSTANCE) override {}
    void popResourceHandle() override {}
    void addReactor(AcApDocManagerReactor* reactor) override
    {
        current->reactors.push_back(reactor);
    }
    void removeReactor(AcApDocManagerReactor* reactor) override
    {
        std::erase(current->reactors, reactor);
    }
    Acad::ErrorStatus lockDocument(AcApDocument*, AcAp::DocLockMode, const ACHAR*, const ACHAR*,
                                   bool) override
    {
        return Acad::eNotImplementedYet;
    }
    Acad::ErrorStatus unlockDocument(AcApDocument*) override { return Acad::eNotImplementedYet; }
};
}  // namespace

HostCalls::HostCalls()
{
    current = this;
}

HostCalls::~HostCalls()
{
    current = nullptr;
}

std::vector<std::wstring> HostCalls::take()
{
    return std::exchange(m_calls, {});
}

AcRxDictionary* acrxSysRegistry()
{
    static Registry registry;
    return current != nullptr ? &registry : original<AcRxDictionary*()>("_Z15acrxSysRegistryv")();
}

void acrxBuildClassHierarchy()
{
    current != nullptr ? note(L"acrxBuildClassHierarchy")
                       : original<void()>("_Z23acrxBuildClassHierarchyv")();
}

void deleteAcRxClass(AcRxClass* type)
{
    current != nullptr ? note(L"deleteAcRxClass", type->name())
                       : original<void(AcRxClass*)>("_Z15deleteAcRxClassP9AcRxClass")(type);
}

int acedDefun(const ACHAR* name, short number)
{
    if (current == nullptr)
    {
        return original<int(const ACHAR*, short)>("_Z9acedDefunPKws")(name, number);
    }
    note(L"acedDefun", name, number);
    return RTNORM;
}

int acedUndef(const ACHAR* name, short number)
{
    if (current == nullptr)
    {
        return original<int(const ACHAR*, short)>("_Z9acedUndefPKws")(name, number);
    }
    note(L"acedUndef", name, number);
    return RTNORM;
}

int acedRegFunc(int (*function)(), int number)
{
    if (current == nullptr)
    {
        return original<int(int (*)(), int)>("_Z11acedRegFuncPFivEi")(function, number);
    }
    note(L"acedRegFunc", number);
    return RTNORM;
}

int acedGetFunCode()
{
    return current != nullptr ? current->functionCode : original<int()>("_Z14acedGetFunCodev")();
}

AcApDocManager* acDocManagerPtr()
{
    static DocumentManager manager;
    if (current == nullptr)
    {
        return original<AcApDocManager*()>("_Z15acDocManagerPtrv")();
    }
    return current->documentManagerIsMissing ? nullptr : &manager;
}

BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE module)
{
    if (current != nullptr && current->extensionModulesAreRefused)
    {
        return FALSE;
    }
    return original<BOOL(AFX_EXTENSION_MODULE&, HMODULE)>(
        "_Z22AfxInitExtensionModuleR20AFX_EXTENSION_MODULEP11HINSTANCE__")(state, module);
}

int WINAPI LoadStringW(HINSTANCE module, UINT id, LPWSTR text, int size)
{
    if (current == nullptr)
    {
        return original<int(HINSTANCE, UINT, LPWSTR, int)>("LoadStringW")(module, id, text, size);
    }
    const std::wstring cut = current->strings[id].substr(0, size - 1);
    std::wcscpy(text, cut.c_str());
    return static_cast<int>(cut.size());
}
