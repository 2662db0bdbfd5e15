#include "host/runtime/linker.h"

#include <algorithm>
#include <utility>

#include "host/basics/breach.h"
#include "host/runtime/commandstack.h"
#include "host/runtime/lispfunctions.h"
#include "host/basics/scoped.h"
#include "host/windows/text.h"

ACRX_DEFINE_MEMBERS(AcRxDynamicLinker, AcRxObject)

namespace host
{
namespace fs = std::filesystem;

namespace
{
bool sameName(const fs::path& loaded, const fs::path& asked)
{
    return asked.has_parent_path() ? loaded == fs::absolute(asked).lexically_normal()
                                   : loaded.filename() == asked || loaded.stem() == asked;
}

bool runsCommandOf(const ModuleFile& file)
{
    return std::ranges::any_of(
        commandStack().all(),
        [&](const CommandPtr& command) {
            return command->isRunning() &&
                   file.holds(reinterpret_cast<void*>(command->functionAddr()));
        });
}

void requireCommandsRemoved(const ModuleFile& file)
{
    for (const CommandPtr& command : commandStack().all())
    {
        if (file.holds(reinterpret_cast<void*>(command->functionAddr())))
        {
            breach("kUnloadAppMsg", file.path().filename().string() +
                                        " did not remove a command that it had registered");
        }
    }
}

// Returns the objects whose virtual functions are in this file.
std::vector<const void*> listenersOf(const Linker& linker, const ModuleFile& file)
{
    std::vector<const void*> found = linker.listeners();
    std::erase_if(found, [&](const void* object)
                  { return !file.holds(*static_cast<const void* const*>(object)); });
    return found;
}

[[noreturn]] void breachOfListeners(const fs::path& path)
{
    breach("removeReactor", path.filename().string() + " left a document reactor behind");
}

void requireGone(const Linker& linker, const std::vector<const void*>& gone, const fs::path& path)
{
    const std::vector<const void*> left = linker.listeners();
    if (std::ranges::find_first_of(left, gone) != left.end())
    {
        breachOfListeners(path);
    }
}

// A refused file was in the process for a moment: its static objects were created and destroyed.
Result<std::unique_ptr<ModuleFile>> openFile(const Linker& linker, const fs::path& path)
{
    const std::size_t before = linker.listeners().size();
    Result<std::unique_ptr<ModuleFile>> file = ModuleFile::open(path);
    if (!file && linker.listeners().size() > before)
    {
        breachOfListeners(path);
    }
    return file;
}
}  // namespace

fs::path Linker::resolve(const fs::path& name) const
{
    const fs::path file = name.has_extension() ? name : fs::path(name).replace_extension(".arx");
    if (!name.has_parent_path())
    {
        const auto seen = std::ranges::find(m_seen, file, &fs::path::filename);
        if (seen != m_seen.end())
        {
            return *seen;
        }
        if (!fs::exists(file) && fs::exists(m_searchFolder / file))
        {
            return m_searchFolder / file;
        }
    }
    return fs::absolute(file).lexically_normal();
}

Module* Linker::find(const fs::path& name) const
{
    const auto found = std::ranges::find_if(
        m_modules, [&](const Module& module) { return sameName(module.file->path(), name); });
    return found == m_modules.end() ? nullptr : &*found;
}

Module* Linker::fromPacket(const void* packet) const
{
    const auto found =
        std::ranges::find_if(m_modules, [&](const Module& module) { return &module == packet; });
    return found == m_modules.end() ? nullptr : &*found;
}

AcRx::AppRetCode Linker::send(Module& module, AcRx::AppMsgCode message)
{
    const Scoped<Module*> current(m_current, &module);
    return module.file->send(message, &module);
}

Result<> Linker::load(const fs::path& name)
{
    const fs::path path = resolve(name);
    if (Module* loaded = find(path))
    {
        ++loaded->references;
        return Done{};
    }
    Result<std::unique_ptr<ModuleFile>> file = openFile(*this, path);
    if (!file)
    {
        return file.failure();
    }
    std::erase(m_seen, path);
    m_seen.push_front(path);
    m_modules.emplace_back().file = std::move(*file);
    return start(m_modules.back());
}

Result<> Linker::start(Module& module)
{
    const bool started = send(module, AcRx::kInitAppMsg) != AcRx::kRetError &&
                         (!m_drawingOpen || send(module, AcRx::kLoadDwgMsg) != AcRx::kRetError);
    if (started)
    {
        return Done{};
    }
    const std::string path = module.file->path().string();
    send(module, AcRx::kUnloadAppMsg);
    remove(module);
    return Failure{path + ": the module does not want to be loaded"};
}

Result<> Linker::unload(const fs::path& name)
{
    Module* module = find(name);
    if (module == nullptr)
    {
        return Failure{name.string() + ": not loaded"};
    }
    if (module->locked)
    {
        return Failure{name.string() + ": the module is locked"};
    }
    if (runsCommandOf(*module->file))
    {
        return Failure{name.string() + ": a command of the module is running"};
    }
    if (refuses(*module))
    {
        return Failure{name.string() + ": the module refuses to be unloaded"};
    }
    remove(*module);
    return Done{};
}

bool Linker::refuses(Module& module)
{
    if (m_drawingOpen)
    {
        send(module, AcRx::kUnloadDwgMsg);
    }
    return send(module, AcRx::kUnloadAppMsg) == AcRx::kRetError;
}

void Linker::remove(Module& module)
{
    requireCommandsRemoved(*module.file);
    lispFunctions().forget(module);
    const fs::path path = module.file->path();
    const std::vector<const void*> reactors = listenersOf(*this, *module.file);
    m_modules.remove_if([&](const Module& other) { return &other == &module; });
    requireGone(*this, reactors, path);
}

void Linker::unloadAll()
{
    while (!m_modules.empty())
    {
        // The host is ending, so a refusal has no effect.
        refuses(m_modules.back());
        remove(m_modules.back());
    }
}

std::vector<const void*> Linker::listeners() const
{
    return m_listeners ? m_listeners() : std::vector<const void*>();
}

void Linker::setDrawingOpen(bool open)
{
    m_drawingOpen = open;
    for (Module& module : m_modules)
    {
        if (lispFunctions().has(module))
        {
            send(module, open ? AcRx::kLoadDwgMsg : AcRx::kUnloadDwgMsg);
        }
    }
}

void Linker::broadcast(AcRx::AppMsgCode message)
{
    for (Module& module : m_modules)
    {
        send(module, message);
    }
}

bool Linker::loadModule(const ACHAR* fileName, bool printit, bool)
{
    const Result<> loaded = load(toNativePath(fileName));
    if (!loaded && printit && m_report)
    {
        m_report(loaded.failure().line);
    }
    return bool(loaded);
}

bool Linker::unloadModule(const ACHAR* fileName, bool asCmd)
{
    Module* module = find(toNativePath(fileName));
    if (module != nullptr && !asCmd && module->references > 1)
    {
        --module->references;
        return true;
    }
    return bool(unload(toNativePath(fileName)));
}

bool Linker::loadApp(const ACHAR* appName, AcadApp::LoadReasons, bool printit, bool asCmd)
{
    return loadModule(appName, printit, asCmd);
}

bool Linker::lockApplication(void* packet) const
{
    Module* module = fromPacket(packet);
    return module != nullptr && (module->locked = true);
}

bool Linker::unlockApplication(void* packet) const
{
    Module* module = fromPacket(packet);
    return module != nullptr && !(module->locked = false);
}

bool Linker::isApplicationLocked(const ACHAR* name) const
{
    const Module* module = find(toNativePath(name));
    return module != nullptr && module->locked;
}

bool Linker::registerAppMDIAware(void* packet) const
{
    Module* module = fromPacket(packet);
    return module != nullptr && (module->mdiAware = true);
}

bool Linker::isAppMDIAware(const ACHAR* name) const
{
    const Module* module = find(toNativePath(name));
    return module != nullptr && module->mdiAware;
}

Linker& linker()
{
    static Linker linker;
    return linker;
}
}  // namespace host
