#include "settings/textstyles.h"

#include <gmock/gmock.h>

#include "host/database/packing.h"
#include "tests/output/unnamed.h"
#include "tests/support/opendrawing.h"

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

class TextStyles : public tests::OpenDrawing
{
protected:
    AcDbObjectId addStyle(const wchar_t* name)
    {
        host::DatabaseCore& core = host::coreOf(database());
        return core
            .addLoadedRecord<AcDbTextStyleTableRecord>(core.roots()[host::Root::textStyleTable],
                                                       name, core.handles().take())
            ->objectId();
    }
    static std::vector<std::wstring> names()
    {
        std::vector<std::wstring> names;
        for (const CString& name : textStyleNames())
        {
            names.emplace_back(name);
        }
        return names;
    }
};

TEST_F(TextStyles, areNamedInTheOrderOfTheirTable)
{
    addStyle(L"Slanted");
    addStyle(L"");  // the record of a shape file, which is not a style for texts
    addStyle(L"Narrow");
    EXPECT_THAT(names(), ElementsAre(L"Standard", L"Slanted", L"Narrow"));
}

TEST_F(TextStyles, thatSomeoneWritesAreLeftOut)
{
    const AcDbObjectId slanted = addStyle(L"Slanted");
    AcDbObjectPointer<AcDbTextStyleTableRecord> writer(slanted, AcDb::kForWrite);
    EXPECT_THAT(names(), ElementsAre(L"Standard"));
}

TEST_F(TextStyles, whoseNamesAreNotToldAreLeftOut)
{
    for (const Acad::ErrorStatus status : {Acad::eOk, Acad::eOutOfMemory})
    {
        const tests::Unnamed unnamed(status);
        EXPECT_THAT(names(), IsEmpty());
    }
}

TEST_F(TextStyles, areNoneWithoutTheirTable)
{
    {
        AcDbObjectPointer<AcDbTextStyleTable> writer(
            AcDbObjectId(host::coreOf(database()).roots()[host::Root::textStyleTable]),
            AcDb::kForWrite);
        EXPECT_THAT(names(), IsEmpty());
    }
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    EXPECT_THAT(names(), IsEmpty());
}

TEST(TextStylesWithoutADrawing, areNone)
{
    EXPECT_TRUE(textStyleNames().empty());
}
}  // namespace
