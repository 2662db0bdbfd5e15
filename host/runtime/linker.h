// Loads modules, talks to them and unloads them.
#pragma once

#include <functional>
#include <list>
#include <string>
#include <vector>

#include "host/basics/scoped.h"
#include "host/runtime/modulefile.h"
#include "rxdlinkr.h"

namespace host
{
// A loaded module. Its address is the packet of kInitAppMsg, by which the module identifies itself.
struct Module
{
    std::unique_ptr<ModuleFile> file;
    bool locked = true;     // the module cannot be unloaded
    bool mdiAware = false;  // the module supports several drawings
    int references = 1;     // the number of loads that have not been taken back
};

// Loads and unloads modules and sends them messages. Modules see it as acrxDynamicLinker.
class Linker final : public AcRxDynamicLinker
{
public:
    using Report = std::function<void(const std::string&)>;
    using Listeners = std::function<std::vector<const void*>()>;

    // Loads a module and starts it. Loading it again only counts the load. A name without a folder
    // is looked up among the modules that were loaded before, then in the current folder, then in
    // the search folder. ".arx" may be left out. Fails when the file is not a module or the module
    // refuses to start.
    Result<> load(const std::filesystem::path& name);
    // Unloads a module, however often it was loaded. Fails when the module is locked or refuses, or
    // when one of its commands is running. A module that leaves a command or a document reactor
    // behind ends the run.
    Result<> unload(const std::filesystem::path& name);
    // Unloads every module, the newest first, whether it is locked or not.
    void unloadAll();

    // Sets whether a drawing is open and notifies the modules that have LISP functions.
    void setDrawingOpen(bool open);
    // Sends the message to every module.
    void broadcast(AcRx::AppMsgCode message);

    // Returns the module that is answering a message [borrowed], or null while none is.
    Module* current() const { return m_current; }
    // Returns the module with that packet [borrowed], or null for any other address. The pointer is
    // good until the module is unloaded.
    Module* fromPacket(const void* packet) const;
    // Sends the message to one module and returns its answer.
    AcRx::AppRetCode send(Module& module, AcRx::AppMsgCode message);

    // Sets the folder in which `load` looks last for a name without a folder.
    void setSearchFolder(std::filesystem::path folder) { m_searchFolder = std::move(folder); }
    // Sets what prints why loadModule failed, if its caller asked for that. The result restores the
    // former one at the end of its scope.
    Scoped<Report> reportTo(Report report) { return {m_report, std::move(report)}; }
    // Sets what returns the objects of modules that the document manager calls. A module that
    // leaves one of them behind ends the run.
    void setListeners(Listeners listeners) { m_listeners = std::move(listeners); }
    // Returns these objects [borrowed]; the list is empty before setListeners.
    std::vector<const void*> listeners() const;

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
    std::filesystem::path m_searchFolder;
    Report m_report;
    Listeners m_listeners;
};

// Returns the one linker [borrowed], which lives as long as the program.
Linker& linker();
}  // namespace host
