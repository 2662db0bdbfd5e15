#include <map>
#include <string>

#include "host/runtime/commandstack.h"
#include "host/runtime/linker.h"
#include "host/runtime/locale.h"

ACRX_DEFINE_MEMBERS(AcRxDictionary, AcRxObject)

namespace host
{
namespace
{
class Registry final : public AcRxDictionary
{
public:
    AcRxObject* at(const ACHAR* key) const override
    {
        const auto found = key ? m_entries.find(key) : m_entries.end();
        return found == m_entries.end() ? nullptr : found->second;
    }

private:
    const std::map<std::wstring, AcRxObject*> m_entries{
        {ACRX_DYNAMIC_LINKER, &linker()}, {L"ACAD_REGISTERED_COMMANDS", &commandStack()}};
};

LCID theLocale = englishLocale;
}  // namespace

void setProductLocale(LCID locale)
{
    theLocale = locale;
}
}  // namespace host

AcRxDictionary* acrxSysRegistry()
{
    static host::Registry registry;
    return &registry;
}

void acrxBuildClassHierarchy() {}

void deleteAcRxClass(AcRxClass*) {}

bool acrxLockApplication(void* appId)
{
    return host::linker().lockApplication(appId);
}

bool acrxUnlockApplication(void* appId)
{
    return host::linker().unlockApplication(appId);
}

bool acrxRegisterAppMDIAware(void* appId)
{
    return host::linker().registerAppMDIAware(appId);
}

bool acrxLoadModule(const ACHAR* moduleName, bool printit, bool asCmd)
{
    return host::linker().loadModule(moduleName, printit, asCmd);
}

LCID acrxProductLCID()
{
    return host::theLocale;
}
