// Breaks the rules about objects of the drawing, resources, locks and prompts.
#include <climits>
#include <string>

#include <dlfcn.h>
#include <sys/resource.h>

#include "acedads.h"
#include "dbapserv.h"
#include "dbents.h"
#include "dbsymtb.h"
#include "rulebreaker.h"
#include "rxmfcapi.h"

namespace
{
AFX_EXTENSION_MODULE extension = {nullptr, nullptr};

AcDbObjectId newText()
{
    AcDbObjectId id;
    AcDbText* const text = new AcDbText;
    AcDbBlockTable* table = nullptr;
    AcDbBlockTableRecord* space = nullptr;
    acdbHostApplicationServices()->workingDatabase()->getBlockTable(table, AcDb::kForRead);
    table->getAt(ACDB_MODEL_SPACE, space, AcDb::kForWrite);
    space->appendAcDbEntity(id, text);
    text->close();
    space->close();
    table->close();
    return id;
}

AcDbText* openText()
{
    AcDbText* text = nullptr;
    acdbOpenObject(text, newText(), AcDb::kForRead);
    return text;
}

void deleteObject()
{
    delete openText();
}

void useClosed()
{
    AcDbText* const text = openText();
    text->close();
    text->upgradeOpen();
}

void writeWhatIsRead()
{
    openText()->setColorIndex(1);
}

void closeTwice()
{
    AcDbText* const text = openText();
    text->close();
    text->close();
}

void leaveOpen()
{
    openText();
}

void readPastTheEnd()
{
    AcGePoint3dArray points;
    points.first();
}

void askForTooMuch()
{
    const rlimit small = {1u << 30, RLIM_INFINITY};
    setrlimit(RLIMIT_AS, &small);
    AcGePoint3dArray points;
    points.setPhysicalLength(INT_MAX - 1);
}

void pushAndKeep()
{
    acDocManager->pushResourceHandle(extension.hModule);
}

void pushNobodys()
{
    acDocManager->pushResourceHandle(reinterpret_cast<HINSTANCE>(&extension));
}

void pop()
{
    acDocManager->popResourceHandle();
}

void unlock()
{
    acDocManager->unlockDocument(acDocManager->curDocument());
}

void keepMeter()
{
    acedSetStatusBarProgressMeter(L"Forever: ", 0, 1);
}

void askForEver()
{
    ads_point point;
    while (acedGetPoint(nullptr, L"\nPoint: ", point) != RTNORM)
    {
    }
}

void linkTooEarly()
{
    AFX_EXTENSION_MODULE none = {nullptr, nullptr};
    new CDynLinkLibrary(none);
}

void openByHand()
{
    Dl_info info;
    dladdr(&extension, &info);
    const std::string own = info.dli_fname;
    dlopen((own.substr(0, own.rfind('/')) + "/refusesattach.arx").c_str(), RTLD_NOW);
}

// After it has been switched on, makes a call that needs a document when no document is open.
class Late : public AcApDocManagerReactor
{
public:
    Late() { acDocManager->addReactor(this); }
    ~Late() override { acDocManager->removeReactor(this); }
    void documentDestroyed(const ACHAR*) override
    {
        if (action != nullptr)
        {
            action();
        }
    }

    void (*action)() = nullptr;
};

Late late;

const Rule rules[] = {
    {L"DELETE", deleteObject},
    {L"USECLOSED", useClosed},
    {L"WRITEREAD", writeWhatIsRead},
    {L"CLOSETWICE", closeTwice},
    {L"LEAVEOPEN", leaveOpen},
    {L"PASTTHEEND", readPastTheEnd},
    {L"TOOMUCH", askForTooMuch},
    {L"PUSHKEEP", pushAndKeep},
    {L"PUSHNOBODY", pushNobodys},
    {L"PUSHLATE", [] { late.action = pushAndKeep; }},
    {L"POPLENT", pop},
    {L"POPNOTHING", pop, ACRX_CMD_MODAL, false},
    {L"POPLATE", [] { late.action = pop; }},
    {L"UNLOCK", unlock, ACRX_CMD_SESSION},
    {L"KEEPMETER", keepMeter},
    {L"ASKFOREVER", askForEver},
    {L"LINKEARLY", linkTooEarly},
    {L"BYHAND", openByHand},
};
}  // namespace

extern "C" BOOL APIENTRY DllMain(HINSTANCE module, DWORD reason, LPVOID)
{
    return join(extension, module, reason);
}

extern "C" AcRx::AppRetCode acrxEntryPoint(AcRx::AppMsgCode message, void*)
{
    if (message == AcRx::kInitAppMsg)
    {
        offer(rules, extension.hModule);
    }
    if (message == AcRx::kUnloadAppMsg)
    {
        takeBack();
    }
    return AcRx::kRetOK;
}
