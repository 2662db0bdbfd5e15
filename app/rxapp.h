// The frame of an application object: it answers the messages of the host.
//
// Every handler gives AcRx::kRetOK. The packet of a message is the host's; it means something to
// the host alone, and only that of kInitAppMsg stands for the module.
#pragma once

#include "hostapi/host.h"

// Some of the host's headers bring classes of the same names, another frame for the same purpose.
namespace netrax
{
class AcRxDbxApp
{
public:
    AcRxDbxApp();

    // Handle of the module's own resources; null before kInitAppMsg.
    HINSTANCE moduleHandle() const { return m_module; }

    virtual AcRx::AppRetCode initApp(void* packet);
    virtual AcRx::AppRetCode unloadApp(void* packet);
    virtual AcRx::AppRetCode loadDrawing(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode unloadDrawing(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode invokeFunction(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode configure(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode end(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode quit(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode save(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode dependency(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode noDependency(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode oleUnload(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode preQuit(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode initDialog(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode endDialog(void*) { return AcRx::kRetOK; }
    virtual AcRx::AppRetCode nullMessage(void*) { return AcRx::kRetOK; }

    // What the module offers to other programs than the host.
    virtual void registerComponents() = 0;

protected:
    ~AcRxDbxApp() {}  // application objects are static

    bool m_unlock;    // let the host unload the module
    bool m_mdiAware;  // tell the host that the module copes with several drawings

private:
    AcRxDbxApp(const AcRxDbxApp&);
    AcRxDbxApp& operator=(const AcRxDbxApp&);

    HINSTANCE m_module;
};

// Adds the commands and the LISP functions.
class AcRxArxApp : public AcRxDbxApp
{
public:
    virtual AcRx::AppRetCode initApp(void* packet) override;
    virtual AcRx::AppRetCode unloadApp(void* packet) override;
    virtual AcRx::AppRetCode loadDrawing(void* packet) override;
    virtual AcRx::AppRetCode unloadDrawing(void* packet) override;
    virtual AcRx::AppRetCode invokeFunction(void* packet) override;

protected:
    ~AcRxArxApp() {}
};

// Hands the message to its handler. A code that this release does not know gives kRetOK, and the
// application does not hear of it.
AcRx::AppRetCode dispatch(AcRxDbxApp& app, AcRx::AppMsgCode message, void* packet);
}  // namespace netrax
