#include "host/program/terminal/completion.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "host/editor/sysvartable.h"
#include "host/runtime/commandstack.h"
#include "host/text/foldcase.h"
#include "host/windows/text.h"

namespace host
{
namespace
{
using Names = std::vector<std::wstring>;

using BeginsWith = bool (*)(std::wstring_view name, std::wstring_view start);

bool beginsWith(std::wstring_view name, std::wstring_view start)
{
    return equalNoCase(name.substr(0, start.size()), start);
}

bool beginsExactly(std::wstring_view name, std::wstring_view start)
{
    return name.starts_with(start);
}

Names commandNames(bool global)
{
    Names names;
    for (const CommandPtr& command : commandStack().all())
    {
        names.emplace_back(global ? command->globalName() : command->localName());
    }
    return names;
}

void addVariables(Names& names)
{
    for (const VariableRow& row : variableRows())
    {
        names.emplace_back(row.name);
    }
    for (const HeaderRow& row : headerRows())
    {
        names.emplace_back(row.name);
    }
}

Names namesFor(const Question& question, std::wstring_view marks)
{
    const bool transparent = marks.starts_with(L'\'');
    if (question.kind == Question::Kind::dialog)
    {
        return {L"check", L"click", L"close", L"color", L"select", L"set", L"show"};
    }
    if (question.kind != Question::Kind::command && !transparent)
    {
        return question.keywords;
    }
    Names names = commandNames(marks.find(L'_') != std::wstring_view::npos);
    if (!transparent)
    {
        addVariables(names);
    }
    return names;
}

// Returns the longest start that all names share. `names` must not be empty.
std::wstring commonStart(const Names& names, BeginsWith begins)
{
    std::wstring common = names.front();
    for (const std::wstring& name : names)
    {
        while (!begins(name, common))
        {
            common.pop_back();
        }
    }
    return common;
}

Completion among(Names names, std::wstring_view typed, BeginsWith begins)
{
    std::erase_if(names, [&](const std::wstring& name) { return !begins(name, typed); });
    std::ranges::sort(names);
    names.erase(std::unique(names.begin(), names.end()), names.end());
    if (names.empty())
    {
        return {};
    }
    const std::wstring common = commonStart(names, begins);
    const bool further = common.size() > typed.size() || names.size() == 1;
    return {typed.size(), common, further ? Names() : names};
}

// Returns the names in a folder. A folder's name ends in "/", so that the next name can follow.
Names namesIn(const std::filesystem::path& folder)
{
    Names names;
    std::error_code error;
    for (std::filesystem::directory_iterator at(folder, error), end; !error && at != end;
         at.increment(error))
    {
        std::error_code ignored;
        const std::wstring name = fromUtf8(at->path().filename().string());
        names.push_back(name + (at->is_directory(ignored) ? L"/" : L""));
    }
    return names;
}

// Completes the name of a file, in which blanks belong to the name. Hidden files are offered once
// their dot has been typed.
Completion completeFile(std::wstring_view line)
{
    line.remove_prefix(line.starts_with(L'"'));
    const std::size_t slash = line.rfind(L'/');
    const std::size_t start = slash == line.npos ? 0 : slash + 1;
    const std::wstring_view typed = line.substr(start);
    Names names = namesIn(start > 0 ? toNativePath(line.substr(0, start)) : L".");
    std::erase_if(names, [&](const std::wstring& name)
                  { return name.starts_with(L'.') && !typed.starts_with(L'.'); });
    return among(std::move(names), typed, beginsExactly);
}
}  // namespace

Completion complete(const Question& question, std::wstring_view beforeCursor)
{
    if (question.kind == Question::Kind::file)
    {
        return completeFile(beforeCursor);
    }
    const std::size_t at = std::min(beforeCursor.find_first_not_of(L"'_."), beforeCursor.size());
    const std::wstring_view typed = beforeCursor.substr(at);
    return among(namesFor(question, beforeCursor.substr(0, at)), typed, beginsWith);
}
}  // namespace host
