#include <utility>

#include "host/basics/angle.h"
#include "host/editor/hostcommands.h"
#include "host/text/numbers.h"
#include "host/editor/owntexts.h"
#include "host/editor/prompts.h"
#include "host/editor/sysvars.h"
#include "host/text/foldcase.h"

namespace host
{
namespace
{
std::wstring theName;

// Asks for the name of a variable; returns no value for Enter and for Esc.
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
            return degrees ? std::optional<VariableValue>(toRadians(*degrees)) : std::nullopt;
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

// Sets the variable to the typed value. Returns true when the question need not be asked again.
bool takeValue(Editor& editor, const VariableInfo& info, const std::wstring& text)
{
    if (text.empty())
    {
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

// Asks for the value until it is valid. Returns false for Esc, which leaves the variable unchanged.
bool askValue(Editor& editor, const VariableInfo& info)
{
    const auto kind = info.type == VariableType::text ? Question::Kind::text : Question::Kind::name;
    const std::wstring prompt =
        own(L"Enter new value for %1 <%2>: ", {info.name, variableText(info.name)});
    while (const auto text = askLine(editor, kind, prompt))
    {
        if (takeValue(editor, info, *text))
        {
            return true;
        }
    }
    return false;
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
    // A read-only variable is shown without a question, so the next line belongs to a command.
    const VariableInfo info = *variableInfo(*name);
    if (info.readOnly || askValue(editor, info))
    {
        editor.printLine(info.name + L" = " + variableText(info.name));
    }
}
}  // namespace host
