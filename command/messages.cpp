#include "command/messages.h"

#include "output/language.h"

namespace
{
const Messages englishMessages = {
    L"\nSpecify first corner point [Settings]: ",
    L"\nSpecify other corner point: ",
    L"\n[<Apply>/Settings]: ",
    L"A",
    L"S",
    L"\n*** horizontal dist: %.2f; vertical dist: %.2f; color: %d; appearance: %s ***",
    L"continuous line",
    L"cross mark, %.2f drawing units",
    L"\n*** failed to save changes in options data",
};

const Messages russianMessages = {
    L"\nУкажите точку первого угла [Настройки]: ",
    L"\nУкажите точку второго угла: ",
    L"\n[<Принять>/Настройки]: ",
    L"П",
    L"Н",
    L"\n*** горизонтальный шаг: %.2f; вертикальный шаг: %.2f; цвет: %d; внешний вид: %s ***",
    L"сплошная линия",
    L"крест, %.2f ед. чертежа",
    L"\n*** не получилось сохранить последние изменения в файле настроек",
};
}  // namespace

CString productLocaleName()
{
    const int capacity = 85;
    wchar_t name[capacity] = L"";
    if (LCIDToLocaleName(acrxProductLCID(), name, capacity, 0) == 0)
    {
        return L"en-US";
    }
    return name;
}

const Messages& messagesFor(const CString& localeName)
{
    return isRussian(localeName) ? russianMessages : englishMessages;
}
