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
// One loaded module. Its address is the packet that names it to the host.
struct Module
{
    std::unique_ptr<ModuleFile> file;
    bool locked = true;
    bool mdiAware = false;
    int references = 1;
};

class Linker final : public AcRxDynamicLinker
{
public:
    using Report = std::function<void(const std::string&)>;

    // A name without a folder is sought where a module of that name was loaded before, in the
    // current folder and in `searchFolder`; ".arx" may be left out.
    Result<> load(const std::filesystem::path& name);
    // Refused for a locked module, for one with a running command, or when the module refuses. A
    // module that leaves a command or a document reactor behind ends the run.
    Result<> unload(const std::filesystem::path& name);
    // Takes every module out of the host, the newest first, locked or not.
    void unloadAll();

    // Whether a drawing is there. Modules with LISP functions are told of it.
    void setDrawingOpen(bool open);
    // To every module.
    void broadcast(AcRx::AppMsgCode message);

    // The module that the host is talking to; null when it is to none.
    Module* current() const { return m_current; }
    // Null for an address that is no packet.
    Module* fromPacket(const void* packet) const;
    AcRx::AppRetCode send(Module& module, AcRx::AppMsgCode message);

    std::filesystem::path searchFolder;
    // Prints a line for calls that ask for it.
    Report report;
    // Objects of modules that the document manager calls.
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

Linker& linker();
}  // namespace host
