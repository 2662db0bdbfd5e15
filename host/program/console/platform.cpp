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

// The read that waits for the user. Another thread may end it before the user does.
class PendingRead
{
public:
    // Returns the number of the read that waits; 0 when no read waits.
    unsigned number()
    {
        const std::lock_guard lock(m_mutex);
        return m_waits ? m_number : 0;
    }

    // Ends the read of that number, if it still waits, as if Enter had been pressed. The reader
    // then gets `as`. Returns whether the read was ended by this call.
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

    // Ends this read and every later read as the end of the input does.
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

    // Begins a read. Returns false if the input has been ended for good.
    bool begin()
    {
        const std::lock_guard lock(m_mutex);
        m_waits = !m_isOver;
        ++m_number;
        return m_waits;
    }

    // Ends the wait and returns the kind with which another thread ended it, if one did. The user's
    // own Enter may have come first; the Enter that we pressed then still waits and is flushed.
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

// Lets the session end by itself and keep the work. Windows ends the program as soon as the handler
// of such an event returns, and some seconds later in any case, so that the handler never returns.
void leaveTimeForTheEnd()
{
    pendingRead.endForGood();
    Sleep(INFINITE);
}

// Makes Ctrl-C cancel the question; it does not stop a command that computes. Windows ends the read
// by itself. Wine reads on, so that the handler ends the line, which then does not count.
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

// Returns what has been typed. Returns an empty text at the end of the input and at Ctrl-C, which
// sets the last error.
std::wstring_view readUnits(std::span<wchar_t> units)
{
    DWORD count = 0;
    SetLastError(ERROR_SUCCESS);
    const BOOL isRead = ReadConsoleW(GetStdHandle(STD_INPUT_HANDLE), units.data(),
                                     DWORD(units.size()), &count, nullptr);
    const bool isEnd = !isRead || units[0] == L'\x1A';
    return {units.data(), isEnd ? 0 : count};
}

// Reads lines that the console edits, as it does for every program. A line that begins with ";" is
// a comment.
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

// Tells whether the console was opened for this program alone, as for a drawing that is dropped on
// the program. Such a console closes when the program ends.
bool isConsoleOurs()
{
    DWORD processes[2];
    return isConsole(STD_INPUT_HANDLE) && isConsole(STD_OUTPUT_HANDLE) &&
           GetConsoleProcessList(processes, 2) == 1;
}
}  // namespace

void beginProcess()
{
    // Lines end the same way on every system, and the console takes them as UTF-8.
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

// Gives the console whole texts instead of bytes. A stream without a buffer passes bytes on one by
// one, which would tear a letter of several bytes apart.
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
