#include "host/program/terminal/completion.h"

#include <algorithm>

#include "host/editor/sysvartable.h"
#include "host/runtime/commandstack.h"
#include "host/runtime/foldcase.h"

namespace host
{
namespace
{
using Names = std::vector<std::wstring>;

bool beginsWith(std::wstring_view name, std::wstring_view start)
{
    return equalNoCase(name.substr(0, start.size()), start);
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

// The longest start that all of them have; there is at least one.
std::wstring commonStart(const Names& names)
{
    std::wstring common = names.front();
    for (const std::wstring& name : names)
    {
        while (!beginsWith(name, common))
        {
            common.pop_back();
        }
    }
    return common;
}
}  // namespace

Completion complete(const Question& question, std::wstring_view beforeCursor)
{
    const std::size_t at = std::min(beforeCursor.find_first_not_of(L"'_."), beforeCursor.size());
    const std::wstring_view typed = beforeCursor.substr(at);
    Names names = namesFor(question, beforeCursor.substr(0, at));
    std::erase_if(names, [&](const std::wstring& name) { return !beginsWith(name, typed); });
    std::ranges::sort(names);
    names.erase(std::ranges::unique(names).begin(), names.end());
    if (names.empty())
    {
        return {};
    }
    const std::wstring common = commonStart(names);
    const bool further = common.size() > typed.size() || names.size() == 1;
    return {typed.size(), common, further ? Names() : names};
}
}  // namespace host
