// What the machine needs at least: the same bytes formatted, written or read with nothing around
// it.
//
//   floor format LINES FILE   the tags of a drawing with that many lines in one group
//   floor write BYTES FILE    that many bytes
//   floor count FILE          counts the pairs of a drawing
//   floor convert FILE        counts them and converts every value by its group code
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>

namespace
{
constexpr std::size_t bufferSize = 1 << 20;

class Out
{
public:
    explicit Out(const char* path) : m_file(open(path, O_WRONLY | O_CREAT | O_TRUNC, 0644)) {}
    ~Out()
    {
        flush();
        close(m_file);
    }
    Out(const Out&) = delete;
    Out& operator=(const Out&) = delete;

    void text(std::string_view text)
    {
        room(text.size());
        std::memcpy(m_at, text.data(), text.size());
        m_at += text.size();
    }
    void hex(std::uint64_t number)
    {
        room(32);
        m_at = std::to_chars(m_at, m_at + 16, number, 16).ptr;
        *m_at++ = '\n';
    }
    void real(std::string_view code, double number)
    {
        text(code);
        room(40);
        char* const first = m_at;
        m_at = std::to_chars(m_at, m_at + 32, number).ptr;
        if (std::string_view(first, std::size_t(m_at - first)).find_first_of(".e") ==
            std::string_view::npos)
        {
            *m_at++ = '.';
            *m_at++ = '0';
        }
        *m_at++ = '\n';
    }

private:
    void room(std::size_t size)
    {
        if (std::size_t(m_buffer.get() + bufferSize - m_at) < size)
        {
            flush();
        }
    }
    void flush()
    {
        const char* from = m_buffer.get();
        while (from != m_at)
        {
            const ssize_t written = write(m_file, from, std::size_t(m_at - from));
            if (written < 0)
            {
                std::exit(1);
            }
            from += written;
        }
        m_at = m_buffer.get();
    }

    int m_file;
    std::unique_ptr<char[]> m_buffer = std::make_unique<char[]>(bufferSize);
    char* m_at = m_buffer.get();
};

constexpr std::uint64_t firstHandle = 0x30;

void line(Out& out, std::uint64_t handle, std::uint64_t group, double x1, double y1, double x2,
          double y2)
{
    out.text("  0\nLINE\n  5\n");
    out.hex(handle);
    out.text("102\n{ACAD_REACTORS\n330\n");
    out.hex(group);
    out.text("102\n}\n330\n1F\n100\nAcDbEntity\n  8\n0\n  6\nContinuous\n 62\n12\n100\nAcDbLine\n");
    out.real(" 10\n", x1);
    out.real(" 20\n", y1);
    out.real(" 30\n", 0);
    out.real(" 11\n", x2);
    out.real(" 21\n", y2);
    out.real(" 31\n", 0);
}

// Pieces one step long, half of them along each axis, as a square grid has them.
void format(std::uint64_t lines, const char* path)
{
    Out out(path);
    const std::uint64_t side = std::uint64_t(std::sqrt(double(lines) / 2));
    const std::uint64_t group = firstHandle + lines;
    out.text("  0\nSECTION\n  2\nENTITIES\n");
    for (std::uint64_t i = 0; i < lines; ++i)
    {
        const std::uint64_t pair = i / 2;
        const double row = double(pair / side + 1);
        const double column = double(pair % side) + 0.5;
        i % 2 == 0 ? line(out, firstHandle + i, group, column, row, column + 1, row)
                   : line(out, firstHandle + i, group, row, column, row, column + 1);
    }
    out.text("  0\nENDSEC\n  0\nSECTION\n  2\nOBJECTS\n  0\nGROUP\n");
    for (std::uint64_t i = 0; i < lines; ++i)
    {
        out.text("340\n");
        out.hex(firstHandle + i);
    }
    out.text("  0\nENDSEC\n  0\nEOF\n");
}

void plainWrite(std::uint64_t bytes, const char* path)
{
    Out out(path);
    const std::string block(4096, '7');
    for (std::uint64_t left = bytes; left > 0;)
    {
        const std::size_t size = std::min<std::uint64_t>(left, block.size());
        out.text({block.data(), size});
        left -= size;
    }
}

std::string contents(const char* path)
{
    const int file = open(path, O_RDONLY);
    struct stat status;
    fstat(file, &status);
    std::string bytes(std::size_t(status.st_size), '\0');
    std::size_t done = 0;
    while (done < bytes.size())
    {
        const ssize_t got = read(file, bytes.data() + done, bytes.size() - done);
        if (got <= 0)
        {
            std::exit(1);
        }
        done += std::size_t(got);
    }
    close(file);
    return bytes;
}

bool isReal(int code)
{
    return (code >= 10 && code < 60) || (code >= 110 && code < 150) || (code >= 210 && code < 240);
}

bool isHandle(int code)
{
    return code == 5 || code == 105 || (code >= 320 && code < 370);
}

// The sum of all values keeps the compiler from removing the work.
double convert(int code, std::string_view value)
{
    while (value.starts_with(' '))
    {
        value.remove_prefix(1);
    }
    const char* const end = value.data() + value.size();
    double real = 0;
    std::uint64_t handle = 0;
    int integer = 0;
    if (isReal(code))
    {
        std::from_chars(value.data(), end, real);
        return real;
    }
    if (isHandle(code))
    {
        std::from_chars(value.data(), end, handle, 16);
        return double(handle);
    }
    if (code >= 60 && code < 100)
    {
        std::from_chars(value.data(), end, integer);
        return integer;
    }
    return double(value.size());
}

void readPairs(const char* path, bool converting)
{
    const std::string bytes = contents(path);
    std::uint64_t pairs = 0;
    double sum = 0;
    const char* at = bytes.data();
    const char* const end = at + bytes.size();
    while (at < end)
    {
        const auto* codeEnd =
            static_cast<const char*>(std::memchr(at, '\n', std::size_t(end - at)));
        const char* value = codeEnd + 1;
        const auto* valueEnd =
            static_cast<const char*>(std::memchr(value, '\n', std::size_t(end - value)));
        ++pairs;
        if (converting)
        {
            int code = 0;
            while (*at == ' ')
            {
                ++at;
            }
            std::from_chars(at, codeEnd, code);
            sum += convert(code, {value, std::size_t(valueEnd - value)});
        }
        at = valueEnd + 1;
    }
    std::printf("%llu pairs %g\n", static_cast<unsigned long long>(pairs), sum);
}
}  // namespace

int main(int count, char** arguments)
{
    const std::string_view mode = count > 2 ? arguments[1] : "";
    if (mode == "count" || mode == "convert")
    {
        readPairs(arguments[2], mode == "convert");
        return 0;
    }
    if (count != 4 || (mode != "format" && mode != "write"))
    {
        return 2;
    }
    const std::uint64_t size = std::strtoull(arguments[2], nullptr, 10);
    mode == "format" ? format(size, arguments[3]) : plainWrite(size, arguments[3]);
    return 0;
}
