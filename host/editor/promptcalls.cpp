#include <algorithm>
#include <cwchar>

#include "geassign.h"
#include "host/editor/promptloop.h"
#include "host/editor/sysvars.h"

namespace host
{
namespace
{
int askPoint(Editor& editor, Question question, const PromptOptions& options, AcGePoint3d& point)
{
    const AcGePoint3d* base = question.base ? &*question.base : nullptr;
    const int result = promptUntilTaken(editor, question, options, pointReader(base, point));
    if (result == RTNORM)
    {
        setLastPoint(point);
    }
    return result;
}

// Copies as much of the text as a caller's buffer holds: 132 characters and a zero.
void copyInput(const std::wstring& text, ACHAR* buffer)
{
    const std::size_t count = std::min<std::size_t>(text.size(), 132);
    std::wmemcpy(buffer, text.c_str(), count);
    buffer[count] = 0;
}
}  // namespace
}  // namespace host

using namespace host;

int acedInitGet(int val, const ACHAR* kwl)
{
    Editor* editor = Editor::current();
    if (editor == nullptr)
    {
        return RTERROR;
    }
    editor->setOptions({val, KeywordList(kwl ? kwl : L"")});
    return RTNORM;
}

int acedGetPoint(const ads_point pt, const ACHAR* prompt, ads_point result)
{
    Editor* editor = askingEditor();
    if (editor == nullptr)
    {
        return RTERROR;
    }
    AcGePoint3d point;
    const Question question = questionOf(Question::Kind::point, prompt, pt);
    const int code = askPoint(*editor, question, editor->takeOptions(), point);
    if (code == RTNORM)
    {
        asPnt3d(result) = point;
    }
    return code;
}

int acedGetCorner(const ads_point pt, const ACHAR* prompt, ads_point result)
{
    Editor* editor = askingEditor();
    if (editor == nullptr || pt == nullptr)
    {
        return RTERROR;
    }
    AcGePoint3d corner;
    const Question question = questionOf(Question::Kind::corner, prompt, pt);
    const int code = askPoint(*editor, question, editor->takeOptions(), corner);
    if (code == RTNORM)
    {
        corner.z = std::get<double>(variableValue(L"ELEVATION"));
        setLastPoint(corner);
        asPnt3d(result) = corner;
    }
    return code;
}

int acedGetKword(const ACHAR* prompt, ACHAR* result)
{
    Editor* editor = Editor::current();
    if (editor == nullptr || result == nullptr)
    {
        return RTERROR;
    }
    const PromptOptions options = editor->takeOptions();
    if (options.keywords.empty() && !(options.bits & RSG_OTHER))
    {
        return RTERROR;  // without keywords, every text would be refused
    }
    const auto none = [](std::wstring_view) { return foreign(L"Invalid option keyword."); };
    const Question question = questionOf(Question::Kind::keyword, prompt, nullptr);
    const int code = promptUntilTaken(*editor, question, options, none);
    if (code != RTKWORD)
    {
        return code;
    }
    copyInput(editor->lastInput().text, result);
    return editor->lastInput().isKeyword ? RTNORM : RTKWORD;
}

int acedGetInput(ACHAR* str)
{
    const Editor* editor = Editor::current();
    if (editor == nullptr || str == nullptr)
    {
        return RTERROR;
    }
    copyInput(editor->lastInput().text, str);
    return RTNORM;
}
