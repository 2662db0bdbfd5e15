#include "host/dxf/replacement.h"

#include <fcntl.h>
#include <io.h>
#include <process.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <utility>

#include "host/dxf/savefailed.h"
#include "host/windows/text.h"
#include "windows.h"

namespace host::dxf
{
namespace
{
namespace fs = std::filesystem;

// Returns the path without symbolic links. The file need not exist.
fs::path followed(const fs::path& path)
{
    std::error_code isNoLink;
    const fs::path end = fs::canonical(path, isNoLink);
    return isNoLink ? path : end;
}

// Returns true if there is an old file. Throws an Error if the user could not write to it.
bool hasOldFile(const fs::path& target, const std::string& path)
{
    std::error_code ignored;
    if (fs::is_directory(target, ignored))
    {
        failSaving(path, "a directory has this name");
    }
    if (::_waccess(target.c_str(), 0) != 0)
    {
        requireSaved(errno == ENOENT, path);
        return false;
    }
    const int canWrite = 2;
    requireSaved(::_waccess(target.c_str(), canWrite) == 0, path);
    return true;
}
}  // namespace

void requireReplaceable(const std::string& path)
{
    const fs::path target = followed(pathOf(path));
    hasOldFile(target, path);
    const fs::path folder = target.has_parent_path() ? target.parent_path() : fs::path(".");
    requireSaved(::_waccess(folder.c_str(), 0) == 0, path);
    std::error_code ignored;
    if (!fs::is_directory(folder, ignored))
    {
        failSaving(path, std::strerror(ENOTDIR));
    }
}

namespace
{
[[noreturn]] void failByLastError(const std::string& path)
{
    failSaving(path, std::error_code(int(GetLastError()), std::system_category()).message());
}

// Sets whether the system deletes the file when its handle is closed. This covers every end of the
// program: Ctrl-C, the closing of the console and Task Manager leave it no time to delete the file.
bool deleteOnClose(int file, bool isDeleted)
{
    FILE_DISPOSITION_INFO disposition = {.DeleteFile = BOOLEAN(isDeleted)};
    return SetFileInformationByHandle(reinterpret_cast<HANDLE>(_get_osfhandle(file)),
                                      FileDispositionInfo, &disposition, sizeof disposition) != 0;
}

// Creates a new file and opens it for writing. Returns -1 with errno if a file of that name exists.
int createUnfinishedFile(const fs::path& path, const std::string& pathInMessages)
{
    const HANDLE made = CreateFileW(path.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    if (made == INVALID_HANDLE_VALUE)
    {
        if (GetLastError() != ERROR_FILE_EXISTS)
        {
            failByLastError(pathInMessages);
        }
        errno = EEXIST;
        return -1;
    }
    const int file = ::_open_osfhandle(reinterpret_cast<std::intptr_t>(made), _O_BINARY);
    deleteOnClose(file, true);
    return file;
}
}  // namespace

class Replacement::Files
{
public:
    explicit Files(const std::string& path);
    ~Files();

    void write(std::string_view bytes);
    void takePlace();

private:
    const std::string m_path;
    const fs::path m_target;
    const bool m_hasOld;
    fs::path m_temporary;
    int m_file = -1;
    bool m_exists = false;
};

Replacement::Files::Files(const std::string& path)
    : m_path(path), m_target(followed(pathOf(path))), m_hasOld(hasOldFile(m_target, path))
{
    // Another run may be saving here or may have been interrupted while saving.
    for (int attempt = 0; attempt < 100 && m_file < 0; ++attempt)
    {
        m_temporary = m_target.parent_path() / (".arxhost-" + std::to_string(::_getpid()) + "-" +
                                                std::to_string(attempt) + ".tmp");
        m_file = createUnfinishedFile(m_temporary, m_path);
    }
    requireSaved(m_file >= 0, m_path);
    m_exists = true;
}

Replacement::Files::~Files()
{
    if (m_file >= 0)
    {
        ::_close(m_file);
    }
    if (m_exists)
    {
        ::_wunlink(m_temporary.c_str());
    }
}

void Replacement::Files::write(std::string_view bytes)
{
    while (!bytes.empty())
    {
        const auto count = unsigned(std::min<std::size_t>(bytes.size(), INT_MAX));
        const int written = ::_write(m_file, bytes.data(), count);
        requireSaved(written >= 0, m_path);
        bytes.remove_prefix(written);
    }
}

// Replaces the old file. The system keeps its owner, rights and creation date.
void Replacement::Files::takePlace()
{
    requireSaved(!m_hasOld || ::_commit(m_file) == 0, m_path);
    if (!deleteOnClose(m_file, false))
    {
        failByLastError(m_path);
    }
    requireSaved(::_close(std::exchange(m_file, -1)) == 0, m_path);
    const BOOL done =
        m_hasOld ? ReplaceFileW(m_target.c_str(), m_temporary.c_str(), nullptr,
                                REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr)
                 : MoveFileExW(m_temporary.c_str(), m_target.c_str(), MOVEFILE_REPLACE_EXISTING);
    if (!done)
    {
        failByLastError(m_path);
    }
    m_exists = false;
}

Replacement::Replacement(const std::string& path) : m_files(std::make_unique<Files>(path)) {}

Replacement::~Replacement() = default;

void Replacement::write(std::string_view bytes)
{
    m_files->write(bytes);
}

void Replacement::takePlace()
{
    m_files->takePlace();
}
}  // namespace host::dxf
