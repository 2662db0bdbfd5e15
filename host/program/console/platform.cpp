#include "host/program/platform.h"

#include <fcntl.h>
#include <io.h>

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <span>
#include <string_view>

#include "host/program/session.h"
#include "host/windows/text.h"
#include "shellapi.h"
#include "windows.h"

namespace host
{
namespace
{
bool isConsole(DWORD which)
{
    DWORD mode = 0;
    return GetConsoleMode(GetStdHandle(which), &mode) != 0;
}

std::atomic<unsigned> reads = 0;  // begun and ended: odd while one goes on
std::atomic<bool> isRefused = false;

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

// Ctrl-C cancels the question; a command that computes is not stopped by it. Windows ends the read,
// Wine reads on: there the line is ended and does not count.
BOOL WINAPI onControl(DWORD event)
{
    const unsigned read = reads;
    if (event != CTRL_C_EVENT || read % 2 == 0)
    {
        return event == CTRL_C_EVENT;
    }
    Sleep(100);
    if (reads == read)
    {
        isRefused = true;
        pressEnter();
    }
    return TRUE;
}

// What has been typed; nothing once the input has ended, or at Ctrl-C, of which the error tells.
std::wstring_view readUnits(std::span<wchar_t> units)
{
    DWORD count = 0;
    SetLastError(ERROR_SUCCESS);
    ++reads;
    const BOOL isRead = ReadConsoleW(GetStdHandle(STD_INPUT_HANDLE), units.data(),
                                     DWORD(units.size()), &count, nullptr);
    ++reads;
    const bool isEnd = !isRead || units[0] == L'\x1A';
    return {units.data(), isEnd ? 0 : count};
}

// Lines that the console edits, as it does for every program. One that begins with ";" is a
// comment.
class ConsoleReader : public AnswerReader
{
public:
    Answer next(const Question& question) override;
    bool visible() const override { return true; }
};

Answer ConsoleReader::next(const Question& question)
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
    if (isRefused.exchange(false))
    {
        return {.kind = Answer::Kind::cancel, .visible = true};
    }
    line.resize(line.find_last_not_of(L"\r\n") + 1);
    const bool isComment = line.starts_with(L';');
    return isComment ? next(question) : answerOf(toUtf8(line), true);
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
