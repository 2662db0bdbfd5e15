#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>

#include "crt.h"
#include "host/basics/outofmemory.h"
#include "host/windows/format.h"
#include "host/windows/text.h"
#include "host/windows/emulated/rewrite.h"
#include "host/windows/emulated/textfile.h"

namespace
{
struct Mode
{
    char access = 0;  // r w a
    bool binary = false;
    std::optional<host::Encoding> encoding;
};

std::optional<host::Encoding> encodingNamed(const wchar_t* name)
{
    if (_wcsicmp(name, L"UTF-8") == 0)
    {
        return host::Encoding::utf8;
    }
    if (_wcsicmp(name, L"UTF-16LE") == 0 || _wcsicmp(name, L"UNICODE") == 0)
    {
        return host::Encoding::utf16;
    }
    return std::nullopt;
}

std::optional<Mode> parseMode(std::wstring text)
{
    std::erase(text, L' ');
    Mode mode;
    if (text.find_first_of(L"rwa") != 0)
    {
        return std::nullopt;
    }
    mode.access = char(text[0]);
    text.erase(0, 1);
    if (text.find_first_of(L"bt") == 0)
    {
        mode.binary = text[0] == L'b';
        text.erase(0, 1);
    }
    if (text.empty())
    {
        return mode;
    }
    if (text.starts_with(L",ccs=") && mode.access == 'r' && !mode.binary)
    {
        mode.encoding = encodingNamed(text.c_str() + 5);
    }
    return mode.encoding ? std::optional(mode) : std::nullopt;
}

struct File
{
    explicit File(int opened = -1) : number(opened) {}
    ~File() { close(); }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    bool close() { return number >= 0 && ::close(std::exchange(number, -1)) == 0; }

    int number;
};

bool isFile(int number)
{
    struct stat status;
    return ::fstat(number, &status) == 0 && S_ISREG(status.st_mode);
}

// Texts are held in memory as a whole. The limit is larger than any useful text.
constexpr std::size_t longestText = 16 << 20;

// Returns nothing if the file cannot be read. A device might have no end and a pipe would have to
// be waited for, so both count as unreadable.
std::optional<std::string> contentOf(const std::string& path)
{
    const File file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (file.number < 0 || !isFile(file.number))
    {
        return std::nullopt;
    }
    std::string content;
    char block[4096];
    while (content.size() <= longestText)
    {
        const ssize_t count = ::read(file.number, block, sizeof block);
        if (count == 0)
        {
            return content;
        }
        if (count < 0 && errno != EINTR)
        {
            return std::nullopt;
        }
        content.append(block, count > 0 ? std::size_t(count) : 0);
    }
    return std::nullopt;
}

// Returns the streams that have units of two bytes instead of characters of one byte.
std::set<FILE*>& unitStreams()
{
    static std::set<FILE*> streams;
    return streams;
}

// A stream opened for text reading: the whole file, already converted.
struct Reader
{
    std::string content;
    std::size_t at = 0;
    FILE* stream = nullptr;
};

ssize_t readText(void* cookie, char* buffer, std::size_t size)
{
    Reader& reader = *static_cast<Reader*>(cookie);
    const std::size_t count = reader.content.copy(buffer, size, reader.at);
    reader.at += count;
    return ssize_t(count);
}

int closeReader(void* cookie)
{
    const std::unique_ptr<Reader> reader(static_cast<Reader*>(cookie));
    unitStreams().erase(reader->stream);
    return 0;
}

FILE* openReader(const std::string& path, std::optional<host::Encoding> encoding)
{
    std::optional<std::string> content = contentOf(path);
    if (!content)
    {
        return nullptr;
    }
    content = encoding ? host::decodedUnits(*content, *encoding) : host::asText(*content);
    if (!content)
    {
        errno = EINVAL;
        return nullptr;
    }
    auto* reader = new Reader{*content};
    reader->stream = fopencookie(reader, "r", {readText, nullptr, nullptr, closeReader});
    if (encoding)
    {
        unitStreams().insert(reader->stream);
    }
    return reader->stream;
}

// A stream opened for text writing. The file keeps its contents until the stream is closed, so a
// run that ends before leaves no incomplete text.
struct Writer
{
    std::string path;
    bool appends;
    File file{};
    std::string content{};
};

// The C library calls this function and would leave the stream locked if the function threw.
ssize_t writeText(void* cookie, const char* bytes, std::size_t size)
{
    const host::NoThrowing writing;
    std::string& content = static_cast<Writer*>(cookie)->content;
    for (const char byte : std::string_view(bytes, size))
    {
        content.append(byte == '\n' ? "\r" : "").push_back(byte);
    }
    return ssize_t(size);
}

int closeWriter(void* cookie)
{
    const std::unique_ptr<Writer> writer(static_cast<Writer*>(cookie));
    const host::NoThrowing writing;
    const int file = writer->file.number;
    const bool written = writer->appends ? host::writeFully(file, writer->content)
                                         : host::rewrite(file, writer->path, writer->content);
    return writer->file.close() && written ? 0 : EOF;
}

FILE* openWriter(const std::string& path, bool appends)
{
    std::unique_ptr<Writer> writer(new Writer{path, appends});
    // A pipe without a reader must fail instead of waiting.
    const int flags = O_WRONLY | O_CREAT | O_CLOEXEC | O_NONBLOCK | (appends ? O_APPEND : 0);
    writer->file.number = ::open(path.c_str(), flags, 0666);
    if (writer->file.number < 0)
    {
        return nullptr;
    }
    // A device would discard the text without an error.
    if (!isFile(writer->file.number))
    {
        errno = EINVAL;
        return nullptr;
    }
    return fopencookie(writer.release(), "w", {nullptr, writeText, nullptr, closeWriter});
}

// Converts units to bytes as the "C" locale of that runtime does.
std::string narrowed(std::wstring_view units)
{
    std::string bytes;
    for (const wchar_t unit : units)
    {
        char byte = '?';
        crtWctomb(&byte, unit);
        bytes += byte;
    }
    return bytes;
}
}  // namespace

FILE* _wfopen(const wchar_t* path, const wchar_t* modeText)
{
    const std::optional<Mode> mode = parseMode(modeText);
    if (!mode)
    {
        errno = EINVAL;
        return nullptr;
    }
    const std::string native = host::toNativePath(path).native();
    if (mode->binary)
    {
        const char access[] = {mode->access, 'b', '\0'};
        return std::fopen(native.c_str(), access);
    }
    return mode->access == 'r' ? openReader(native, mode->encoding)
                               : openWriter(native, mode->access == 'a');
}

wint_t crtFgetwc(FILE* stream)
{
    if (!unitStreams().contains(stream))
    {
        const int byte = std::getc(stream);
        return byte == EOF ? WEOF : wint_t(byte);
    }
    unsigned char bytes[2];
    if (std::fread(bytes, 1, sizeof bytes, stream) != sizeof bytes)
    {
        return WEOF;
    }
    // On that platform U+FFFF has the number of WEOF and cannot be distinguished from it.
    const wint_t unit = bytes[0] | bytes[1] << 8;
    return unit == 0xFFFF ? WEOF : unit;
}

int crtFwprintf(FILE* stream, const wchar_t* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    const std::wstring text = host::formatWide(format, arguments);
    va_end(arguments);
    const std::string bytes = narrowed(text);
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), stream) == bytes.size();
    return written ? int(text.size()) : -1;
}

int crtWctomb(char* bytes, wchar_t unit)
{
    if (bytes == nullptr)
    {
        return 0;
    }
    if (static_cast<unsigned>(unit) > 0xFF)
    {
        errno = EILSEQ;
        return -1;
    }
    *bytes = char(unit);
    return 1;
}
