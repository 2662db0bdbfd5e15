#include "host/program/platform.h"

#include <fcntl.h>
#include <io.h>

#include <cstdio>

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

// Lines that the console edits, as it does for every program. One that begins with ";" is a comment.
class ConsoleReader : public AnswerReader
{
public:
    Answer next(const Question& question) override;
    bool visible() const override { return true; }
};

Answer ConsoleReader::next(const Question& question)
{
    std::wstring line;
    while (line.empty() || line.back() != L'\n')
    {
        wchar_t units[256];
        DWORD count = 0;
        if (!ReadConsoleW(GetStdHandle(STD_INPUT_HANDLE), units, 256, &count, nullptr) ||
            count == 0 || units[0] == L'\x1A')
        {
            return {.kind = Answer::Kind::endOfInput};
        }
        line.append(units, count);
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
    SetConsoleOutputCP(CP_UTF8);
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

bool isAtTerminal()
{
    return isConsole(STD_INPUT_HANDLE) && isConsole(STD_OUTPUT_HANDLE);
}

std::optional<int> runEdited(const Options& options)
{
    if (!isAtTerminal())
    {
        return std::nullopt;
    }
    ConsoleReader reader;
    return runSession(options, reader);
}
}  // namespace host
