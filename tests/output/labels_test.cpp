#include "output/labels.h"

#include "host/database/packing.h"
#include "output/numbers.h"
#include "tests/output/unnamed.h"
#include "tests/support/letgo.h"
#include "tests/support/opendrawing.h"

using tests::inspect;
using tests::near;

namespace
{
class Labels : public tests::OpenDrawing
{
protected:
    AcDbObjectId addStyle(const wchar_t* name, double oblique, double width, double height)
    {
        host::DatabaseCore& core = host::coreOf(database());
        auto* style = core.addLoadedRecord<AcDbTextStyleTableRecord>(
            core.roots()[host::Root::textStyleTable], name, core.handles().take());
        host::setTextStyle(*style, oblique, width, height);
        return style->objectId();
    }
};

AcDbObjectId addPlain(const wchar_t* text, const wchar_t* style = L"Standard",
                      Adesk::UInt16 color = 7)
{
    return addLabelText(true, text, {1, 2, 0}, 2.5, 0.5, color, style, AcDb::kTextLeft,
                        AcDb::kTextBottom, ACDB_MODEL_SPACE);
}

TEST_F(Labels, aLabelIsAsItWasAskedFor)
{
    const AcDbObjectId id = addLabelText(true, L"X=1250.50", {10, 20, 0}, 3, 0.25, 12, L"standard",
                                         AcDb::kTextRight, AcDb::kTextBottom, ACDB_MODEL_SPACE);
    inspect<AcDbText>(id,
                      [&](const AcDbText& text)
                      {
                          EXPECT_STREQ(text.textStringConst(), L"X=1250.50");
                          EXPECT_TRUE(near(text.alignmentPoint(), {10, 20, 0}));
                          EXPECT_NEAR(text.height(), 3, 1e-12);
                          EXPECT_NEAR(text.rotation(), 0.25, 1e-12);
                          EXPECT_EQ(text.colorIndex(), 12);
                          EXPECT_EQ(text.horizontalMode(), AcDb::kTextRight);
                          EXPECT_EQ(text.verticalMode(), AcDb::kTextBottom);
                          EXPECT_EQ(host::recordName(text.textStyle()), L"Standard");
                          EXPECT_EQ(host::recordName(text.linetypeId()), L"Continuous");
                          EXPECT_EQ(host::recordName(text.layerId()), L"0");
                          EXPECT_EQ(text.oblique(), 0);
                          EXPECT_EQ(text.widthFactor(), 1);
                          return 0;
                      });
}

TEST_F(Labels, anEmptyTextMakesNothing)
{
    EXPECT_TRUE(addPlain(L"").isNull());
    EXPECT_TRUE(addPlain(nullptr).isNull());
    EXPECT_TRUE(addPlain(formatReal(notSetReal(), 2)).isNull());
    EXPECT_EQ(entities().length(), 0);
}

TEST_F(Labels, slantAndWidthAreTheStylesAndHeightIsTheLabels)
{
    addStyle(L"Slanted", 0.2, 0.8, 50);
    inspect<AcDbText>(addPlain(L"1", L"Slanted"),
                      [](const AcDbText& text)
                      {
                          EXPECT_EQ(text.oblique(), 0.2);
                          EXPECT_EQ(text.widthFactor(), 0.8);
                          EXPECT_NEAR(text.height(), 2.5, 1e-12);
                          EXPECT_EQ(host::recordName(text.textStyle()), L"Slanted");
                          return 0;
                      });
}

TEST_F(Labels, withoutAStyleTheCurrentOneIsTaken)
{
    host::currentOf(database()).textStyle = addStyle(L"Slanted", 0.2, 0.8, 0).stub();
    const auto style = [](const AcDbText& text) { return host::recordName(text.textStyle()); };
    EXPECT_EQ(inspect<AcDbText>(addPlain(L"1", nullptr), style), L"Slanted");
    EXPECT_EQ(inspect<AcDbText>(addPlain(L"1", L"Standard"), style), L"Standard");
    const auto slant = [](const AcDbText& text) { return text.oblique(); };
    EXPECT_EQ(inspect<AcDbText>(addPlain(L"1", nullptr), slant), 0.2);
}

TEST_F(Labels, anUnknownStyleGivesALabelWithoutSlant)
{
    host::currentOf(database()).textStyle = addStyle(L"Slanted", 0.2, 0.8, 0).stub();
    inspect<AcDbText>(addPlain(L"1", L"NoSuchStyle"),
                      [](const AcDbText& text)
                      {
                          EXPECT_EQ(text.oblique(), 0);
                          EXPECT_EQ(text.widthFactor(), 1);
                          return 0;
                      });
}

TEST_F(Labels, aStyleThatSomeoneWritesGivesItselfButNeitherSlantNorWidth)
{
    const AcDbObjectId slanted = addStyle(L"Slanted", 0.2, 0.8, 0);
    AcDbObjectPointer<AcDbTextStyleTableRecord> writer(slanted, AcDb::kForWrite);
    inspect<AcDbText>(addPlain(L"1", L"Slanted"),
                      [&](const AcDbText& text)
                      {
                          EXPECT_EQ(text.textStyle(), slanted);
                          EXPECT_EQ(text.oblique(), 0);
                          EXPECT_EQ(text.widthFactor(), 1);
                          return 0;
                      });
}

TEST_F(Labels, anErasedStyleIsAnUnknownOne)
{
    const AcDbObjectId slanted = addStyle(L"Slanted", 0.2, 0.8, 0);
    AcDbObjectPointer<AcDbTextStyleTableRecord>(slanted, AcDb::kForWrite)->erase();
    inspect<AcDbText>(addPlain(L"1", L"Slanted"),
                      [](const AcDbText& text)
                      {
                          EXPECT_EQ(host::recordName(text.textStyle()), L"Standard");
                          EXPECT_EQ(text.oblique(), 0);
                          return 0;
                      });
}

TEST_F(Labels, colourNoughtLeavesTheDrawingsCurrentColour)
{
    host::currentOf(database()).color = 3;
    const auto color = [](const AcDbText& text) { return text.colorIndex(); };
    EXPECT_EQ(inspect<AcDbText>(addPlain(L"1", L"Standard", 0), color), 3);
    EXPECT_EQ(inspect<AcDbText>(addPlain(L"1", L"Standard", 4), color), 4);
}

TEST_F(Labels, keepTheLineWeightOfTheDrawing)
{
    host::currentOf(database()).lineWeight = 25;
    const auto weight = [](const AcDbText& text) { return int(text.lineWeight()); };
    EXPECT_EQ(inspect<AcDbText>(addPlain(L"1", L"Standard", 4), weight), 25);
}

TEST_F(Labels, liesInThePlaneOfTheUcsAndKeepsTheCallersPoint)
{
    setUcs({100, 200, 5}, 90);
    const AcGePoint3d position(1, 0, 0);
    const auto add = [&](bool inUcs)
    {
        return addLabelText(inUcs, L"1", position, 2.5, 0, 7, L"Standard", AcDb::kTextMid,
                            AcDb::kTextVertMid, ACDB_MODEL_SPACE);
    };
    inspect<AcDbText>(add(true),
                      [](const AcDbText& text)
                      {
                          EXPECT_TRUE(near(text.alignmentPoint(), {100, 201, 5}));
                          EXPECT_NEAR(text.rotation(), M_PI / 2, 1e-12);
                          return 0;
                      });
    inspect<AcDbText>(add(false),
                      [](const AcDbText& text)
                      {
                          EXPECT_TRUE(near(text.alignmentPoint(), {1, 0, 0}));
                          return 0;
                      });
    EXPECT_TRUE(near(position, {1, 0, 0}, 0));
}

TEST_F(Labels, heightsThatNoTextCanHaveMakeALabelOfTheHostsOwnHeight)
{
    for (const double height : {0.0, -1.0, std::nan(""), HUGE_VAL})
    {
        const AcDbObjectId id = addLabelText(true, L"1", {0, 0, 0}, height, 0, 7, L"Standard",
                                             AcDb::kTextLeft, AcDb::kTextBottom, ACDB_MODEL_SPACE);
        EXPECT_FALSE(id.isNull());
    }
}

TEST_F(Labels, nothingIsMadeWithoutTheBlockOrADrawing)
{
    const tests::LetGo letGo;
    EXPECT_TRUE(addLabelText(true, L"1", {0, 0, 0}, 1, 0, 7, L"Standard", AcDb::kTextLeft,
                             AcDb::kTextBottom, L"NoSuchBlock")
                    .isNull());
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    EXPECT_TRUE(addPlain(L"1").isNull());
    EXPECT_TRUE(addPlain(L"1", nullptr).isNull());
}

TEST_F(Labels, theCurrentTextStyleHasAName)
{
    CString name(L"left over");
    EXPECT_EQ(currentTextStyleName(name), Acad::eOk);
    EXPECT_STREQ(name, L"Standard");
    host::currentOf(database()).textStyle = addStyle(L"Slanted", 0.2, 0.8, 0).stub();
    EXPECT_EQ(currentTextStyleName(name), Acad::eOk);
    EXPECT_STREQ(name, L"Slanted");
}

TEST_F(Labels, aTextStyleThatCannotBeReadHasNone)
{
    host::currentOf(database()).textStyle = nullptr;
    CString name(L"left over");
    EXPECT_EQ(currentTextStyleName(name), Acad::eNullObjectId);
    EXPECT_TRUE(name.IsEmpty());
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    EXPECT_EQ(currentTextStyleName(name), Acad::eNoDatabase);
}

TEST_F(Labels, aTextStyleWhoseNameIsNotToldHasNone)
{
    for (const Acad::ErrorStatus status : {Acad::eOk, Acad::eOutOfMemory})
    {
        const tests::Unnamed unnamed(status);
        CString name(L"left over");
        EXPECT_EQ(currentTextStyleName(name), status);
        EXPECT_TRUE(name.IsEmpty());
    }
}
}  // namespace
