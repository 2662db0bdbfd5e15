// Loads modules, talks to them and unloads them.
#pragma once

#include <functional>
#include <list>
#include <string>
#include <vector>

#include "host/runtime/modulefile.h"
#include "rxdlinkr.h"

namespace host
{
// One loaded module. Its address is the packet of kInitAppMsg, by which the module names itself.
struct Module
{
    std::unique_ptr<ModuleFile> file;
    bool locked = true;     // cannot be unloaded
    bool mdiAware = false;  // copes with several drawings
    int references = 1;     // loads that have not been taken back
};

// Loads and unloads modules and sends them messages. Modules see it as acrxDynamicLinker.
class Linker final : public AcRxDynamicLinker
{
public:
    using Report = std::function<void(const std::string&)>;

    // Loads a module and starts it; loading it again only counts. A name without a folder means a
    // module of that name that was loaded before, then a file in the current folder, then one in
    // `searchFolder`. ".arx" may be left out.
    Result<> load(const std::filesystem::path& name);
    // Unloads a module, however often it was loaded. It fails for a locked module, for one whose
    // command is running, and when the module refuses. A module that leaves a command or a document
    // reactor behind ends the run.
    Result<> unload(const std::filesystem::path& name);
    // Unloads every module, the newest first, locked or not.
    void unloadAll();

    // Notes whether a drawing is open and tells the modules with LISP functions.
    void setDrawingOpen(bool open);
    // Sends the message to every module.
    void broadcast(AcRx::AppMsgCode message);

    // The module that is answering a message [borrowed]; null while none is.
    Module* current() const { return m_current; }
    // The module of that packet [borrowed]; null for any other address.
    Module* fromPacket(const void* packet) const;
    // Sends the message to one module and returns its answer.
    AcRx::AppRetCode send(Module& module, AcRx::AppMsgCode message);

    std::filesystem::path searchFolder;
    // Prints why loadModule failed, when its caller asked for that.
    Report report;
    // Returns the objects of modules that the document manager calls.
    std::function<std::vector<const void*>()> listeners;

    bool loadModule(const ACHAR* fileName, bool printit, bool asCmd) override;
    bool unloadModule(const ACHAR* fileName, bool asCmd) override;
    bool loadApp(const ACHAR* appName, AcadApp::LoadReasons reason, bool printit,
                 bool asCmd) override;
    bool lockApplication(void* packet) const override;
    bool unlockApplication(void* packet) const override;
    bool isApplicationLocked(const ACHAR* name) const override;
    bool registerAppMDIAware(void* packet) const override;
    bool isAppMDIAware(const ACHAR* name) const override;

private:
    std::filesystem::path resolve(const std::filesystem::path& name) const;
    Module* find(const std::filesystem::path& name) const;
    Result<> start(Module& module);
    bool refuses(Module& module);
    void remove(Module& module);

    mutable std::list<Module> m_modules;
    std::list<std::filesystem::path> m_seen;  // newest first
    Module* m_current = nullptr;
    bool m_drawingOpen = false;
};

// The one linker.
Linker& linker();
}  // namespace host
