#include "host/program/platform.h"

#include <fcntl.h>
#include <io.h>

#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <optional>
#include <span>
#include <string_view>
#include <utility>

#include "host/editor/owntexts.h"
#include "host/program/session.h"
#include "host/runtime/locale.h"
#include "host/windows/text.h"
#include "rxregsvc.h"
#include "shellapi.h"
#include "windows.h"

namespace host
{
namespace
{
// Windows 7 refuses a text of more than 64 kilobytes.
const std::size_t most = 8192;

bool isConsole(DWORD which)
{
    DWORD mode = 0;
    return GetConsoleMode(GetStdHandle(which), &mode) != 0;
}

void pressEnter()
{
    INPUT_RECORD enter = {.EventType = KEY_EVENT, .Event = {}};
    enter.Event.KeyEvent = {.bKeyDown = TRUE,
                            .wRepeatCount = 1,
                            .wVirtualKeyCode = VK_RETURN,
                            .wVirtualScanCode = 0,
                            .uChar = {.UnicodeChar = L'\r'},
                            .dwControlKeyState = 0};
    DWORD count = 0;
    WriteConsoleInputW(GetStdHandle(STD_INPUT_HANDLE), &enter, 1, &count);
}

// The read that waits for the user, and who ends it before the user does.
class PendingRead
{
public:
    // The number of the read; 0 when none waits.
    unsigned number()
    {
        const std::lock_guard lock(m_mutex);
        return m_waits ? m_number : 0;
    }

    // Ends the read of that number, if it still waits, as if Enter had been pressed. Whoever reads
    // is told `as`.
    bool end(unsigned number, Answer::Kind as)
    {
        const std::lock_guard lock(m_mutex);
        if (!m_waits || m_number != number || m_endedAs)
        {
            return false;
        }
        m_endedAs = as;
        pressEnter();
        return true;
    }

    // Ends this read and every later one, as the end of the input does.
    void endForGood()
    {
        const std::lock_guard lock(m_mutex);
        m_isOver = true;
        if (m_waits)
        {
            m_endedAs = Answer::Kind::endOfInput;
            pressEnter();
        }
    }

    // False if there is nothing to wait for any more.
    bool begin()
    {
        const std::lock_guard lock(m_mutex);
        m_waits = !m_isOver;
        ++m_number;
        return m_waits;
    }

    // What the read was ended as. The Enter key of the user may have come first: then ours still
    // waits to be read.
    std::optional<Answer::Kind> ended()
    {
        const std::lock_guard lock(m_mutex);
        m_waits = false;
        if (m_endedAs)
        {
            FlushConsoleInputBuffer(GetStdHandle(STD_INPUT_HANDLE));
        }
        return std::exchange(m_endedAs, std::nullopt);
    }

private:
    std::mutex m_mutex;
    bool m_waits = false;
    bool m_isOver = false;
    unsigned m_number = 0;
    std::optional<Answer::Kind> m_endedAs;
};

PendingRead pendingRead;

// Windows ends the program as soon as the handler of such an event returns, and some seconds later
// in any case: the handler waits while the session comes to its own end and keeps the work.
void leaveTimeForTheEnd()
{
    pendingRead.endForGood();
    Sleep(INFINITE);
}

// Ctrl-C cancels the question; a command that computes is not stopped by it. Windows ends the read,
// Wine reads on: there the line is ended and does not count.
BOOL WINAPI onControl(DWORD event)
{
    if (event == CTRL_CLOSE_EVENT || event == CTRL_LOGOFF_EVENT || event == CTRL_SHUTDOWN_EVENT)
    {
        leaveTimeForTheEnd();
    }
    const unsigned read = event == CTRL_C_EVENT ? pendingRead.number() : 0;
    if (read != 0)
    {
        Sleep(100);
        pendingRead.end(read, Answer::Kind::cancel);
    }
    return event == CTRL_C_EVENT;
}

// What has been typed; nothing once the input has ended, or at Ctrl-C, of which the error tells.
std::wstring_view readUnits(std::span<wchar_t> units)
{
    DWORD count = 0;
    SetLastError(ERROR_SUCCESS);
    const BOOL isRead = ReadConsoleW(GetStdHandle(STD_INPUT_HANDLE), units.data(),
                                     DWORD(units.size()), &count, nullptr);
    const bool isEnd = !isRead || units[0] == L'\x1A';
    return {units.data(), isEnd ? 0 : count};
}

// Lines that the console edits, as it does for every program. One that begins with ";" is a
// comment.
class ConsoleReader : public AnswerReader
{
public:
    Answer next(const Question& question) override;
    bool endWait() override
    {
        return pendingRead.end(pendingRead.number(), Answer::Kind::withdrawn);
    }
    bool visible() const override { return true; }

private:
    static Answer read();
};

Answer ConsoleReader::next(const Question& question)
{
    if (!pendingRead.begin())
    {
        return {.kind = Answer::Kind::endOfInput};
    }
    const Answer answer = read();
    if (const auto kind = pendingRead.ended())
    {
        return {.kind = *kind, .visible = true};
    }
    const bool isComment = answer.text.starts_with(L';');
    return isComment ? next(question) : answer;
}

Answer ConsoleReader::read()
{
    std::wstring line;
    while (!line.ends_with(L'\n'))
    {
        wchar_t units[256] = L"";
        const std::wstring_view typed = readUnits(units);
        if (typed.empty())
        {
            const bool isCancelled = GetLastError() == ERROR_OPERATION_ABORTED;
            return {.kind = isCancelled ? Answer::Kind::cancel : Answer::Kind::endOfInput};
        }
        line += typed;
    }
    line.resize(line.find_last_not_of(L"\r\n") + 1);
    return answerOf(toUtf8(line), true);
}

// Whether the console was opened for this program alone, as for a drawing that is dropped on it:
// it closes at the end.
bool isConsoleOurs()
{
    DWORD processes[2];
    return isConsole(STD_INPUT_HANDLE) && isConsole(STD_OUTPUT_HANDLE) &&
           GetConsoleProcessList(processes, 2) == 1;
}
}  // namespace

void beginProcess()
{
    // Lines end the same way on every system, and the console is told that they are UTF-8.
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
    _setmode(_fileno(stdin), _O_BINARY);
    static const UINT codePageBefore = GetConsoleOutputCP();
    SetConsoleOutputCP(CP_UTF8);
    std::atexit([] { SetConsoleOutputCP(codePageBefore); });
}

std::vector<std::string> givenArguments(int, char**)
{
    int count = 0;
    wchar_t** const arguments = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> texts;
    for (int i = 0; i < count; ++i)
    {
        texts.push_back(toUtf8(arguments[i]));
    }
    LocalFree(arguments);
    return texts;
}

bool silenceOutput()
{
    return std::freopen("NUL", "w", stdout) != nullptr;
}

// Whole texts, and not as bytes: a letter of several bytes would come apart where a stream that is
// not buffered hands them on one by one.
void write(std::FILE* stream, std::string_view text)
{
    const HANDLE handle = reinterpret_cast<HANDLE>(_get_osfhandle(_fileno(stream)));
    DWORD mode = 0;
    if (!GetConsoleMode(handle, &mode))
    {
        std::fwrite(text.data(), 1, text.size(), stream);
        return;
    }
    const std::wstring units = fromUtf8(text);
    DWORD count = 0;
    for (std::size_t at = 0; at < units.size(); at += most)
    {
        const std::wstring_view part = std::wstring_view(units).substr(at, most);
        WriteConsoleW(handle, part.data(), DWORD(part.size()), &count, nullptr);
    }
}

void beforeTheEnd(int status)
{
    if (status == EXIT_SUCCESS || !isConsoleOurs())
    {
        return;
    }
    const OwnText text(L"Press Enter to close the window.");
    const bool isRussian = acrxProductLCID() == russianLocale;
    write(stdout, toUtf8(isRussian ? text.russian() : text.english()));
    wchar_t units[256];
    readUnits(units);
}

std::filesystem::path stateFolder()
{
    const wchar_t* const local = ::_wgetenv(L"LOCALAPPDATA");
    if (local == nullptr)
    {
        return {};
    }
    const std::filesystem::path folder = std::filesystem::path(local) / "arxhost";
    std::error_code ignored;
    std::filesystem::create_directories(folder, ignored);
    return folder;
}

int errorColumns()
{
    CONSOLE_SCREEN_BUFFER_INFO info{};
    const HANDLE console = GetStdHandle(STD_ERROR_HANDLE);
    return GetConsoleScreenBufferInfo(console, &info) != 0 ? info.dwSize.X : 0;
}

bool makeNewFile(const std::filesystem::path& file)
{
    const HANDLE made = CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    return made != INVALID_HANDLE_VALUE && CloseHandle(made);
}

std::optional<int> runAtTerminal(const Options& options)
{
    if (!isConsole(STD_INPUT_HANDLE) || !isConsole(STD_OUTPUT_HANDLE))
    {
        return std::nullopt;
    }
    SetConsoleCtrlHandler(onControl, TRUE);
    ConsoleReader reader;
    return runSession(options, reader);
}
}  // namespace host
