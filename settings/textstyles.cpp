#include "settings/textstyles.h"

#include <memory>

namespace
{
void addName(const AcDbTextStyleTableIterator& styles, std::vector<CString>& names)
{
    AcDbTextStyleTableRecord* style = nullptr;
    if (styles.getRecord(style, AcDb::kForRead) != Acad::eOk)
    {
        return;
    }
    const ACHAR* name = nullptr;
    if (style->getName(name) == Acad::eOk && name != nullptr && *name != 0)
    {
        names.push_back(name);
    }
    style->close();
}
}  // namespace

std::vector<CString> textStyleNames()
{
    std::vector<CString> names;
    const AcAxDocLock lock;
    AcDbDatabase* database = acdbHostApplicationServices()->workingDatabase();
    if (lock.lockStatus() != Acad::eOk || database == nullptr)
    {
        return names;
    }
    AcDbSymbolTablePointer<AcDbTextStyleTable> table(database, AcDb::kForRead);
    AcDbTextStyleTableIterator* iterator = nullptr;
    if (table.openStatus() != Acad::eOk || table->newIterator(iterator) != Acad::eOk)
    {
        return names;
    }
    const std::unique_ptr<AcDbTextStyleTableIterator> styles(iterator);
    for (styles->start(); !styles->done(); styles->step())
    {
        addName(*styles, names);
    }
    return names;
}
