#include "output/language.h"

bool isRussian(const CString& localeName)
{
    return localeName.CompareNoCase(L"ru-RU") == 0;
}
