#include <utility>

#include "host/editor/hostcommands.h"
#include "host/editor/numbertext.h"
#include "host/editor/owntexts.h"
#include "host/editor/prompts.h"
#include "host/editor/sysvars.h"
#include "host/runtime/foldcase.h"

#include <numbers>

namespace host
{
namespace
{
std::wstring theName;

// Nothing for Enter and for Esc.
std::optional<std::wstring> askName(Editor& editor)
{
    while (const auto name = askLine(editor, Question::Kind::name, own(L"Enter variable name: ")))
    {
        if (name->empty())
        {
            return std::nullopt;
        }
        if (isVariable(*name))
        {
            return name;
        }
        editor.printLine(own(L"Unknown variable name."));
    }
    return std::nullopt;
}

std::optional<VariableValue> parsePointValue(std::wstring_view text)
{
    const std::optional<TypedPoint> typed = parsePoint(text);
    return typed ? std::optional<VariableValue>(resolvePoint(*typed, nullptr)) : std::nullopt;
}

template <class Number>
std::optional<VariableValue> asValue(std::optional<Number> number)
{
    return number ? std::optional<VariableValue>(*number) : std::nullopt;
}

std::optional<VariableValue> parseValue(const VariableInfo& info, const std::wstring& text)
{
    switch (info.type)
    {
        case VariableType::integer:
            return asValue(parseInteger(text));
        case VariableType::point:
            return parsePointValue(text);
        case VariableType::text:
            return text == L"." ? std::wstring() : text;
        case VariableType::angle:
        {
            const std::optional<double> degrees = parseReal(text);
            return degrees ? std::optional<VariableValue>(*degrees * std::numbers::pi / 180)
                           : std::nullopt;
        }
        default:
            return asValue(parseReal(text));
    }
}

std::wstring requirement(const VariableInfo& info)
{
    switch (info.type)
    {
        case VariableType::integer:
            return own(L"Requires an integer between %1 and %2.",
                       {std::to_wstring(info.range.least), std::to_wstring(info.range.most)});
        case VariableType::point:
            return own(L"Invalid point.");
        case VariableType::text:
            return own(L"Cannot set %1 to that value.", {info.name});
        case VariableType::positive:
            return own(L"Value must be positive and nonzero.");
        default:
            return own(L"Requires numeric value.");
    }
}

// Whether the question is answered.
bool takeValue(Editor& editor, const VariableInfo& info, const std::wstring& text)
{
    if (text.empty())
    {
        return true;
    }
    if (info.readOnly)
    {
        editor.printLine(own(L"%1 is read only.", {info.name}));
        return true;
    }
    const std::optional<VariableValue> value = parseValue(info, text);
    if (value && setVariable(info.name, *value) == VariableError::none)
    {
        return true;
    }
    editor.printLine(requirement(info));
    return false;
}

// Read-only variables are asked for as well: a script gives one answer whichever it names.
std::wstring valuePrompt(const VariableInfo& info)
{
    const OwnText prompt = info.readOnly ? OwnText(L"Enter new value for %1 (read only) <%2>: ")
                                         : OwnText(L"Enter new value for %1 <%2>: ");
    return own(prompt, {info.name, variableText(info.name)});
}
}  // namespace

void nameForSetvar(std::wstring_view name)
{
    theName = name;
}

void setvarCommand()
{
    Editor& editor = *Editor::current();
    std::optional<std::wstring> name = std::exchange(theName, {});
    if (name->empty())
    {
        name = askName(editor);
    }
    if (!name)
    {
        return;
    }
    const VariableInfo info = *variableInfo(*name);
    const auto kind = info.type == VariableType::text ? Question::Kind::text : Question::Kind::name;
    for (;;)
    {
        const auto text = askLine(editor, kind, valuePrompt(info));
        if (!text)
        {
            return;
        }
        if (takeValue(editor, info, *text))
        {
            editor.printLine(info.name + L" = " + variableText(info.name));
            return;
        }
    }
}
}  // namespace host
