#include "host/program/terminal/keys.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <cwchar>

namespace host
{
namespace
{
const char escape = '\x1b';
const wchar_t controlC = 3;

// The bytes of a key's sequence arrive together, or within this time over a slow line.
const int sequenceMilliseconds = 50;

bool moreComes()
{
    pollfd input{STDIN_FILENO, POLLIN, 0};
    return poll(&input, 1, sequenceMilliseconds) > 0;
}

int readByte(EditLine* editLine, char& byte)
{
    for (;;)
    {
        const ssize_t count = ::read(STDIN_FILENO, &byte, 1);
        if (count >= 0 || errno != EINTR)
        {
            return int(count);
        }
        el_resize(editLine);
    }
}
}  // namespace

int readKey(EditLine* editLine, wchar_t* key)
{
    const std::size_t incomplete = std::size_t(-2);
    const std::size_t invalid = std::size_t(-1);
    std::mbstate_t state{};
    std::size_t length = incomplete;
    char byte = 0;
    while (length == incomplete)
    {
        const int count = readByte(editLine, byte);
        if (count <= 0)
        {
            return count;
        }
        length = std::mbrtowc(key, &byte, 1, &state);
        if (length == invalid)
        {
            // The byte does not belong to UTF-8 and is dropped.
            state = {};
            length = incomplete;
        }
    }
    if (byte == escape && !moreComes())
    {
        *key = controlC;
    }
    return 1;
}
}  // namespace host
