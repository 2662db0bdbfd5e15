#include "tests/settings/dialogrun.h"

#include <gtest/gtest.h>

#include <sstream>

std::string DialogRun::with(std::vector<std::string> lines)
{
    support::Session session;
    return with(session, std::move(lines));
}

std::string DialogRun::with(support::Session& session, std::vector<std::string> lines)
{
    const auto dialog = [this]
    {
        acedSetCurrentUCS(ucs);
        CSettingsDlg dlg(settings, gridWidth, gridHeight, locale, settings.textStyleName);
        result = dlg.DoModal();
        settings = dlg.settings();
    };
    const std::size_t given = lines.size();
    const std::string said = session.run(dialog, std::move(lines));
    EXPECT_FALSE(session.endedInsideCommand) << said;
    EXPECT_EQ(session.questions.size(), given) << said;
    return said;
}

std::string shown(const std::string& said, int control)
{
    const std::string start = "[control] " + std::to_string(control) + " ";
    std::istringstream lines(said);
    for (std::string line; std::getline(lines, line);)
    {
        if (line.starts_with(start))
        {
            return line.substr(start.size());
        }
    }
    return {};
}

std::vector<std::string> typed(const std::string& lines)
{
    const std::string bar = " | ";
    std::vector<std::string> typed;
    for (std::size_t at = 0; at < lines.size();)
    {
        const std::size_t end = std::min(lines.find(bar, at), lines.size());
        const std::string line = lines.substr(at, end - at);
        typed.push_back(line == "<Enter>" ? "" : line);
        at = end + bar.size();
    }
    return typed;
}
