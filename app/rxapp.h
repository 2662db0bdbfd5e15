// The base of an application object: it answers the messages of the host.
//
// Every handler returns AcRx::kRetOK. The packet of a message is [borrowed] from the host and
// opaque to the module. The packet of kInitAppMsg identifies the module in calls of the host's
// linker.
#pragma once

#include "hostapi/host.h"

// The namespace keeps these classes apart from classes of the host with the same names and the same
// purpose, which some of its headers declare.
namespace netrax
{
// Registers and removes the custom classes of the module. Every other message is accepted and
// ignored.
class AcRxDbxApp
{
public:
    AcRxDbxApp();

    // Returns the handle of the module's own resources [borrowed]. It is null until kInitAppMsg has
    // been handled.
    HINSTANCE moduleHandle() const { return m_module; }

    // Handles kInitAppMsg: notes the handle of the module, notifies the host's linker as m_unlock
    // and m_mdiAware request, and registers the custom classes.
    virtual AcRx::AppRetCode initApp(void* packet);

    // Handles kUnloadAppMsg: deletes the custom classes.
    virtual AcRx::AppRetCode unloadApp(void* packet);

    // The handlers of the other messages. Each of them does nothing here.
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

    // Registers what the module offers to programs other than the host.
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

// Registers the commands and the LISP functions as well. Commands exist from kInitAppMsg to
// kUnloadAppMsg, LISP functions from kLoadDwgMsg to kUnloadDwgMsg of each drawing.
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

// Calls the handler of the message and returns its result. A message code that is not known here
// returns kRetOK, and no handler is called.
AcRx::AppRetCode dispatch(AcRxDbxApp& app, AcRx::AppMsgCode message, void* packet);
}  // namespace netrax
