#include "settings/manylines.h"

#include <cmath>

#include "output/language.h"

namespace
{
struct Question
{
    const wchar_t* vertical;
    const wchar_t* horizontal;
    const wchar_t* both;
    const wchar_t* caption;
};

const Question englishQuestion = {
    L"Large number of vertical lines in grid. Proceed?",
    L"Large number of horizontal lines in grid. Proceed?",
    L"Large number of vertical and horizontal lines in grid. Proceed?",
    L"Attention",
};

const Question russianQuestion = {
    L"Большое количество вертикальных линий в сетке. Продолжить?",
    L"Большое количество горизонтальных линий в сетке. Продолжить?",
    L"Большое количество вертикальных и горизонтальных линий в сетке. Продолжить?",
    L"Внимание",
};

const wchar_t* textOf(const Question& question, bool vertical, bool horizontal)
{
    if (vertical && horizontal)
    {
        return question.both;
    }
    return vertical ? question.vertical : question.horizontal;
}
}  // namespace

bool isManyLines(double gridSize, double step)
{
    return std::fabs(gridSize / step) > 50.0;
}

bool userAllowsManyLines(bool vertical, bool horizontal, const CString& localeName)
{
    const Question& question = isRussian(localeName) ? russianQuestion : englishQuestion;
    return MessageBoxW(adsw_acadMainWnd(), textOf(question, vertical, horizontal), question.caption,
                       MB_YESNO) == IDYES;
}
