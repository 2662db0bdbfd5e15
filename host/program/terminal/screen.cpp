#include "host/program/terminal/screen.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdio>
#include <utility>

#include "host/program/meterbar.h"

namespace host
{
namespace
{
int columns()
{
    winsize size{};
    const bool known = ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return known ? size.ws_col : 80;
}
}  // namespace

void Screen::print(std::string_view text)
{
    m_waiting += text;
    const std::size_t end = m_waiting.rfind('\n');
    if (end == std::string::npos)
    {
        return;
    }
    show(m_waiting.substr(0, end + 1));
    m_waiting.erase(0, end + 1);
}

void Screen::report(std::string_view line)
{
    finish();
    if (std::exchange(m_promptOpen, false))
    {
        show("\n");
    }
    std::fprintf(stderr, "arxhost: %.*s\n", int(line.size()), line.data());
}

void Screen::showMeter(const std::optional<Meter>& meter)
{
    const std::string bar = meter ? meterBar(*meter, columns()) : "";
    if (bar != m_bar)
    {
        showBar(bar);
    }
}

std::string Screen::takePrompt()
{
    return std::exchange(m_waiting, {});
}

void Screen::finish()
{
    if (!m_waiting.empty())
    {
        print("\n");
    }
}

// Writes whole lines and draws the bar below them again.
void Screen::show(std::string_view text)
{
    const std::string bar = m_bar;
    showBar("");
    std::fwrite(text.data(), 1, text.size(), stdout);
    m_promptOpen = false;
    showBar(bar);
    std::fflush(stdout);
}

void Screen::showBar(const std::string& bar)
{
    if (!m_bar.empty() || !bar.empty())
    {
        std::fprintf(stdout, "\r%s\x1b[K", bar.c_str());
        std::fflush(stdout);
    }
    m_bar = bar;
}
}  // namespace host
