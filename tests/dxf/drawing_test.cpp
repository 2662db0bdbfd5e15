// Drawings through the database: opened, added to and saved.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <numbers>
#include <sstream>

#include "dbdict.h"
#include "dbgroup.h"
#include "dbobjptr.h"
#include "host/database/packing.h"
#include "host/database/undo.h"
#include "host/dxf/binaryform.h"
#include "host/dxf/emptydrawing.h"
#include "host/dxf/filesource.h"
#include "host/dxf/tagfile.h"
#include "tests/dxf/smalldrawing.h"
#include "tests/support/emptydrawing.h"

namespace
{
namespace fs = std::filesystem;

class Drawing : public testing::Test
{
protected:
    Drawing() : path(fs::temp_directory_path() / ("drawing-" + std::to_string(getpid()) + ".dxf"))
    {
    }
    ~Drawing() override { fs::remove(path); }

    std::string saved(AcDbDatabase& database)
    {
        const host::Result<> result = host::saveDrawing(database, path.string());
        EXPECT_TRUE(result) << result.failure().line;
        std::ifstream file(path, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), {});
    }

    // Opens a drawing made of the empty one with a text replaced.
    std::unique_ptr<AcDbDatabase> changed(const std::string& from, const std::string& to)
    {
        std::string text = host::dxf::emptyDrawing();
        const std::size_t at = text.find(from);
        EXPECT_NE(at, text.npos) << from;
        text.replace(at, from.size(), to);
        return opened(text);
    }

    std::unique_ptr<AcDbDatabase> opened(const std::string& text)
    {
        std::ofstream(path, std::ios::binary) << text;
        host::Result<host::OpenedDrawing> opened = host::openDrawing(path.string());
        EXPECT_TRUE(opened) << opened.failure().line;
        return std::move(opened->database);
    }

    AcDbGroup* makeGroup(AcDbDatabase& database)
    {
        AcDbDictionary* dictionary = nullptr;
        database.getGroupDictionary(dictionary, AcDb::kForWrite);
        auto* group = new AcDbGroup(L"*", true);
        AcDbObjectId id;
        dictionary->setAt(L"*", group, id);
        dictionary->close();
        return group;
    }

    const fs::path path;
};

std::size_t count(const std::string& text, const std::string& part)
{
    std::size_t found = 0;
    for (std::size_t at = text.find(part); at != text.npos; at = text.find(part, at + 1))
    {
        ++found;
    }
    return found;
}

TEST_F(Drawing, savedAsItWasOpenedIsTheSameFile)
{
    EmptyDrawing drawing;
    EXPECT_EQ(saved(drawing.database()), host::dxf::emptyDrawing());
}

TEST_F(Drawing, whatIsAddedAndTakenBackLeavesTheSameFile)
{
    EmptyDrawing drawing;
    const host::UndoMark mark = host::undoMark(drawing.database());
    drawing.addLine(0, 0, 1, 1);
    makeGroup(drawing.database())->close();
    host::undoTo(drawing.database(), mark);
    EXPECT_EQ(saved(drawing.database()), host::dxf::emptyDrawing());
}

TEST_F(Drawing, aNewLineGetsAHandleAboveAllOthersAndTheSeedFollows)
{
    EmptyDrawing drawing;
    const auto highest =
        host::dxf::TagFile::fromText(host::dxf::emptyDrawing(), "empty").highestHandle();
    drawing.addLine(0.5, 0, 1e-7, 12345678.25);
    const auto file = host::dxf::TagFile::fromText(saved(drawing.database()), "saved");
    ASSERT_EQ(file.records("ENTITIES").size(), 1u);
    const host::dxf::Record& line = file.records("ENTITIES")[0];
    EXPECT_EQ(file.typeName(line), "LINE");
    EXPECT_GT(line.handle, highest);
    const auto seed = *file.tags(*file.header("$HANDSEED")).begin();
    EXPECT_GT(file.handle(seed), line.handle);
    std::vector<double> reals;
    for (const host::dxf::Tag& tag : file.tags(line))
    {
        if (tag.code.number() >= 10 && tag.code.number() < 40)
        {
            reals.push_back(file.real(tag));
        }
    }
    EXPECT_EQ(reals, (std::vector<double>{0.5, 0, 0, 1e-7, 12345678.25, 0}));
}

TEST_F(Drawing, aGroupAndItsMembersNameEachOther)
{
    EmptyDrawing drawing;
    AcDbGroup* group = makeGroup(drawing.database());
    group->append(drawing.addLine(0, 0, 1, 1));
    group->append(drawing.add(new AcDbText(AcGePoint3d(), L"a", AcDbObjectId::kNull, 1)));
    group->close();
    const std::string text = saved(drawing.database());
    char handle[20];
    std::snprintf(handle, sizeof handle, "%llX\n",
                  static_cast<unsigned long long>(group->objectId().stub()->handle()));
    EXPECT_EQ(count(text, std::string("102\n{ACAD_REACTORS\n330\n") + handle), 2u);
    EXPECT_EQ(count(text, std::string("  3\n*A1\n350\n") + handle), 1u);
    EXPECT_EQ(count(text, "\n340\n"), count(host::dxf::emptyDrawing(), "\n340\n") + 2);
}

TEST_F(Drawing, anErasedGroupLeavesNoReactorBehind)
{
    EmptyDrawing drawing;
    AcDbGroup* group = makeGroup(drawing.database());
    group->append(drawing.addLine(0, 0, 1, 1));
    group->erase();
    group->close();
    const std::string text = saved(drawing.database());
    EXPECT_EQ(count(text, "*A1"), 0u);
    EXPECT_EQ(count(text, "{ACAD_REACTORS"), count(host::dxf::emptyDrawing(), "{ACAD_REACTORS"));
}

TEST_F(Drawing, aLayerThatWasThawedUnlockedAndSwitchedOnIsSavedSo)
{
    std::string text = host::dxf::emptyDrawing();
    const auto file = host::dxf::TagFile::fromText(text, "empty");
    for (const host::dxf::Record& record : file.records("TABLES"))
    {
        if (file.typeName(record) != "LAYER")
        {
            continue;
        }
        std::string layer = text.substr(record.begin, record.end - record.begin);
        layer.replace(layer.find("  5\n"),
                      layer.find("\n", layer.find("  5\n") + 4) - layer.find("  5\n"), "  5\nABC");
        layer.replace(layer.find("\n  2\n0\n"), 7, "\n  2\nother\n");
        const auto set = [&layer](const std::string& code, const std::string& value)
        {
            const std::size_t at = layer.find("\n" + code + "\n") + code.size() + 2;
            layer.replace(at, layer.find('\n', at) - at, value);
        };
        set(" 70", "69");
        set(" 62", "-3");
        text.insert(record.end, layer);
        break;
    }
    const auto database = opened(text);
    {
        AcDbSymbolTableRecordPointer<AcDbLayerTableRecord> layer(L"OTHER", database.get(),
                                                                 AcDb::kForWrite);
        ASSERT_EQ(layer.openStatus(), Acad::eOk);
        EXPECT_TRUE(layer->isFrozen() && layer->isLocked() && layer->isOff());
        layer->setIsFrozen(false);
        layer->setIsLocked(false);
        layer->setIsOff(false);
    }
    const std::string after = saved(*database);
    const std::size_t at = after.find("\n  2\nother\n");
    EXPECT_EQ(after.find("\n 70\n64\n", at), at + 10 - 0) << after.substr(at, 60);
    EXPECT_EQ(count(after, "\n 62\n-3\n"), 0u);
}

TEST_F(Drawing, whatALayerIsGivenStandsBeforeTheDataOfApplications)
{
    std::string text = host::dxf::emptyDrawing();
    const std::size_t layer = text.find("\n  2\n0\n", text.find("AcDbLayerTableRecord"));
    const std::size_t color = text.find("\n 62\n", layer);
    text.erase(color, std::string("\n 62\n7").size());
    const std::size_t end = text.find("\n  0\n", layer);
    text.insert(end, "\n1001\nACAD\n1070\n62");
    const auto database = opened(text);
    {
        AcDbSymbolTableRecordPointer<AcDbLayerTableRecord> zero(L"0", database.get(),
                                                                AcDb::kForWrite);
        ASSERT_EQ(zero.openStatus(), Acad::eOk);
        zero->setIsOff(true);
    }
    const std::string after = saved(*database);
    EXPECT_NE(after.find("\n 62\n-7\n1001\nACAD\n1070\n62\n"), after.npos)
        << after.substr(after.rfind("AcDbLayerTableRecord"), 120);
}

TEST_F(Drawing, currentPropertiesComeFromTheHeader)
{
    const auto database = changed("$CECOLOR\n 62\n256", "$CECOLOR\n 62\n3");
    EXPECT_EQ(host::currentOf(*database).color, 3);
    EXPECT_EQ(host::recordName(database->clayer()), L"0");
    EXPECT_EQ(host::recordName(database->textstyle()), L"Standard");
    EXPECT_EQ(host::recordName(database->celtype()), L"ByLayer");
}

TEST_F(Drawing, aVariableOfAnotherTypeIsSavedUnderTheCodeOfTheNewOne)
{
    const auto database = changed("$ELEVATION\n 40\n0.0", "$ELEVATION\n 70\n0");
    host::stateOf(*database).variables[L"ELEVATION"] = 2.5;
    EXPECT_EQ(count(saved(*database), "$ELEVATION\n 40\n2.5\n"), 1u);
}

TEST_F(Drawing, aVariableOfADrawingWithoutAHeaderMakesOne)
{
    const std::string lean = "  0\nSECTION\n  2\nENTITIES\n  0\nENDSEC\n  0\nEOF\n";
    const auto database = opened(lean);
    host::stateOf(*database).variables[L"ELEVATION"] = 2.5;
    EXPECT_EQ(saved(*database),
              "  0\nSECTION\n  2\nHEADER\n  9\n$ELEVATION\n 40\n2.5\n  0\nENDSEC\n" + lean);
}

TEST_F(Drawing, aViewThatWasTurnedIsSavedInTheViewportAndNothingElseChanges)
{
    EmptyDrawing drawing;
    host::stateOf(drawing.database()).view.twist = 0.5235987755982988;
    const std::string before = host::dxf::emptyDrawing();
    const std::string after = saved(drawing.database());
    EXPECT_EQ(count(after, "\n"), count(before, "\n"));
    const auto database = opened(after);
    EXPECT_NEAR(host::stateOf(*database).view.twist, 0.5235987755982988, 1e-15);
}

// Other programs leave them out.
TEST_F(Drawing, aViewportWithoutAnIconIsGivenNone)
{
    std::string text = host::dxf::emptyDrawing();
    for (const std::string tag : {"\n 71\n0", "\n 74\n3"})
    {
        text.erase(text.find(tag, text.find("\nVPORT\n")), tag.size());
    }
    const auto database = opened(text);
    host::stateOf(*database).ucsIcon = 0;
    host::stateOf(*database).ucsFollow = 1;
    EXPECT_EQ(saved(*database), text);
}

TEST_F(Drawing, aTwistBeyondOneTurnIsSavedAsItWasRead)
{
    for (const double degrees : {-30.0, 390.0, -750.0, 360.0})
    {
        std::string text = host::dxf::emptyDrawing();
        const std::string none = "\n 51\n0.0\n";
        text.replace(text.find(none, text.find("\nVPORT\n")), none.size(),
                     "\n 51\n" + std::to_string(degrees) + "\n");
        const auto database = opened(text);
        EXPECT_NEAR(host::stateOf(*database).view.twist, degrees * std::numbers::pi / 180, 1e-14);
        EXPECT_EQ(saved(*database), text);
    }
}

TEST_F(Drawing, theSlantOfAStyleIsHeldInDegreesAndReadInRadians)
{
    const auto database = changed("\n 41\n1.0\n 50\n0.0\n", "\n 41\n1.0\n 50\n15.0\n");
    AcDbSymbolTableRecordPointer<AcDbTextStyleTableRecord> style(L"Standard", database.get(),
                                                                 AcDb::kForRead);
    ASSERT_EQ(style.openStatus(), Acad::eOk);
    EXPECT_NEAR(style->obliquingAngle(), 15 * std::numbers::pi / 180, 1e-15);
}

TEST_F(Drawing, aUcsThatWasSetIsReadBack)
{
    EmptyDrawing drawing;
    AcGeMatrix3d matrix = AcGeMatrix3d::rotation(0.25, AcGeVector3d(1, 2, 3));
    matrix.setTranslation(AcGeVector3d(5, 6, 7));
    host::stateOf(drawing.database()).modelUcs.toWorld = matrix;
    const auto database = opened(saved(drawing.database()));
    const AcGeMatrix3d& read = host::stateOf(*database).modelUcs.toWorld;
    for (int row = 0; row < 3; ++row)
    {
        for (int column = 0; column < 4; ++column)
        {
            EXPECT_NEAR(read.entry[row][column], matrix.entry[row][column], 1e-14);
        }
    }
}

TEST_F(Drawing, aVariableThatWasSetIsSavedUnderItsOwnCode)
{
    EmptyDrawing drawing;
    host::stateOf(drawing.database()).variables[L"ELEVATION"] = 2.5;
    const std::string after = saved(drawing.database());
    EXPECT_EQ(count(after, "$ELEVATION\n 40\n2.5\n"), 1u);
}

TEST_F(Drawing, existingAnonymousGroupsAreCountedOn)
{
    std::string text = host::dxf::emptyDrawing();
    const auto file = host::dxf::TagFile::fromText(text, "empty");
    // The group dictionary is the one that the root names ACAD_GROUP.
    const std::size_t name = text.find("ACAD_GROUP\n350\n");
    const std::size_t end = text.find('\n', name + 15);
    const std::string handle = text.substr(name + 15, end - name - 15);
    for (const host::dxf::Record& record : file.records("OBJECTS"))
    {
        if (record.handle == std::stoull(handle, nullptr, 16))
        {
            text.insert(record.end, "  3\n*A7\n350\nFFFF\n");
        }
    }
    const auto database = opened(text);
    makeGroup(*database)->close();
    EXPECT_EQ(count(saved(*database), "  3\n*A8\n350\n"), 1u);
}

TEST_F(Drawing, withoutAGroupDictionaryOneIsMade)
{
    const std::string name = "  3\nACAD_GROUP\n";
    std::string text = host::dxf::emptyDrawing();
    const std::size_t at = text.find(name);
    const std::size_t end = text.find("  3\n", at + 1);
    text.erase(at, end - at);
    const auto database = opened(text);
    makeGroup(*database)->close();
    const std::string after = saved(*database);
    EXPECT_EQ(count(after, name), 1u);
    EXPECT_EQ(count(after, "  3\n*A1\n"), 1u);
    const auto again = opened(after);
    makeGroup(*again)->close();
    EXPECT_EQ(count(saved(*again), "  3\n*A2\n"), 1u);
}

TEST_F(Drawing, aSeedThatLeavesNoRoomIsNotTrusted)
{
    const auto database = changed("$HANDSEED\n  5\n2A", "$HANDSEED\n  5\nFFFFFFFFFFFFFFFF");
    EXPECT_EQ(host::coreOf(*database).handles().next(), 0x2Au);
}

TEST_F(Drawing, aSeedBelowTheHighestHandleIsNotTrusted)
{
    const auto database = changed("$HANDSEED\n  5\n2A", "$HANDSEED\n  5\n3");
    EXPECT_EQ(host::coreOf(*database).handles().next(), 0x2Au);
}

TEST_F(Drawing, aSeedAboveTheHighestHandleIsKeptTo)
{
    const auto database = changed("$HANDSEED\n  5\n2A", "$HANDSEED\n  5\n1000");
    EXPECT_EQ(host::coreOf(*database).handles().next(), 0x1000u);
}

std::string corner(const std::string& name, const std::string& x, const std::string& y)
{
    return "$" + name + "\n 10\n" + x + "\n 20\n" + y + "\n 30\n";
}

void addLine(AcDbDatabase& database, const AcGePoint3d& start, const AcGePoint3d& end)
{
    AcDbBlockTableRecord* space = nullptr;
    ASSERT_EQ(
        acdbOpenObject(space, AcDbObjectId(host::coreOf(database).roots()[host::Root::modelSpace]),
                       AcDb::kForWrite),
        Acad::eOk);
    auto* line = new AcDbLine(start, end);
    space->appendAcDbEntity(line);
    line->close();
    space->close();
}

// The ASCII form has no room for it.
TEST_F(Drawing, aTextOfSeveralLinesStaysInABinaryDrawing)
{
    const std::string mark = "  2\nENTITIES\n";
    const std::string note = "  0\nTOLERANCE\n  5\nF0\n  1\nfirst/second\n";
    std::string binary;
    host::dxf::BinaryEncoder encoder([&](std::string_view bytes) { binary += bytes; }, 2);
    encoder.take(replaced(host::dxf::emptyDrawing(), mark, mark + note));
    encoder.finish();
    binary = replaced(binary, "first/second", "first\nsecond");
    const auto database = opened(binary);
    EXPECT_EQ(saved(*database), binary);

    addLine(*database, AcGePoint3d(), AcGePoint3d(5, 5, 0));
    EXPECT_EQ(count(saved(*database), "first\nsecond"), 1u);
    EXPECT_EQ(count(saved(*database), "LINE"), count(binary, "LINE") + 1);
}

TEST_F(Drawing, theHeaderCoversWhatHasBeenAdded)
{
    EmptyDrawing drawing;
    drawing.addLine(-1, 2, 10, 20.5);
    const std::string text = saved(drawing.database());
    EXPECT_EQ(count(text, corner("EXTMIN", "-1.0", "2.0")), 1u);
    EXPECT_EQ(count(text, corner("EXTMAX", "10.0", "20.5")), 1u);
}

// In whatever form the numbers are written there.
TEST_F(Drawing, theHeaderStaysWhereItCoversAllAlready)
{
    const std::string stated =
        replaced(host::dxf::emptyDrawing(), corner("EXTMIN", "1e+20", "1e+20") + "1e+20",
                 corner("EXTMIN", "0.000", "-5") + "0");
    const auto database = opened(replaced(stated, corner("EXTMAX", "-1e+20", "-1e+20") + "-1e+20",
                                          corner("EXTMAX", "100.000", "1e2") + "0"));
    addLine(*database, AcGePoint3d(10, 10, 0), AcGePoint3d(90, 90, 0));
    const std::string inside = saved(*database);
    EXPECT_EQ(count(inside, corner("EXTMIN", "0.000", "-5") + "0"), 1u);
    EXPECT_EQ(count(inside, corner("EXTMAX", "100.000", "1e2") + "0"), 1u);

    addLine(*database, AcGePoint3d(10, 10, 0), AcGePoint3d(200, 90, 0));
    const std::string outside = saved(*database);
    EXPECT_EQ(count(outside, corner("EXTMIN", "0.000", "-5") + "0"), 1u);
    EXPECT_EQ(count(outside, corner("EXTMAX", "200.0", "100.0") + "0.0"), 1u);
}

// Another program's drawing, with entities but without their extents.
TEST_F(Drawing, aFileThatDoesNotStateItsExtentsIsMeasured)
{
    const auto measure = [](const host::dxf::TagFile&) {
        return host::dxf::Measured{{AcGePoint3d(-7, -8, 0), AcGePoint3d(7, 8, 0)}, true};
    };
    host::dxf::setMeasure(measure);
    EmptyDrawing drawing;
    EXPECT_EQ(saved(drawing.database()), host::dxf::emptyDrawing());
    drawing.addLine(0, 0, 100, 1);
    const std::string text = saved(drawing.database());
    host::dxf::setMeasure(nullptr);
    EXPECT_EQ(count(text, corner("EXTMIN", "-7.0", "-8.0")), 1u);
    EXPECT_EQ(count(text, corner("EXTMAX", "100.0", "8.0")), 1u);
}

// Measuring takes longer than reading the file, so a box that is stated is trusted.
TEST_F(Drawing, aStatedBoxGrowsOverWhatHasBeenAddedAndAPointGivesWayToTheMeasuredBox)
{
    const auto stating = [](const std::string& low, const std::string& high)
    {
        return replaced(
            replaced(host::dxf::emptyDrawing(), corner("EXTMIN", "1e+20", "1e+20") + "1e+20", low),
            corner("EXTMAX", "-1e+20", "-1e+20") + "-1e+20", high);
    };
    const auto measure = [](const host::dxf::TagFile&) {
        return host::dxf::Measured{{AcGePoint3d(-7, -8, 0), AcGePoint3d(70, 80, 0)}, true};
    };
    const struct
    {
        std::string drawing, low, high;
    } rows[] = {
        {stating(corner("EXTMIN", "0.0", "-5.0") + "0.0",
                 corner("EXTMAX", "100.0", "50.0") + "0.0"),
         corner("EXTMIN", "0.0", "-5.0"), corner("EXTMAX", "200.0", "50.0")},
        {stating(corner("EXTMIN", "3.0", "3.0") + "0.0", corner("EXTMAX", "3.0", "3.0") + "0.0"),
         corner("EXTMIN", "-7.0", "-8.0"), corner("EXTMAX", "200.0", "80.0")},
    };
    for (const auto& row : rows)
    {
        const auto database = opened(row.drawing);
        host::dxf::setMeasure(measure);
        addLine(*database, AcGePoint3d(10, 10, 0), AcGePoint3d(200, 40, 0));
        const std::string text = saved(*database);
        host::dxf::setMeasure(nullptr);
        EXPECT_EQ(count(text, row.low), 1u) << row.low;
        EXPECT_EQ(count(text, row.high), 1u) << row.high;
    }
}

// A header may state the box of an earlier drawing.
TEST_F(Drawing, theExtentsAreMeasuredAndThoseOfTheHeaderCountWhereThatIsNotPossible)
{
    const std::string stated =
        replaced(host::dxf::emptyDrawing(), corner("EXTMIN", "1e+20", "1e+20") + "1e+20",
                 corner("EXTMIN", "0.0", "-5.0") + "0.0");
    const struct
    {
        host::dxf::Measure measure;
        AcGePoint3d low, high;
    } rows[] = {
        {[](const host::dxf::TagFile&) {
             return host::dxf::Measured{{AcGePoint3d(-7, 2, 0), AcGePoint3d(7, 8, 0)}, true};
         },
         AcGePoint3d(-7, 2, 0), AcGePoint3d(7, 8, 0)},
        {[](const host::dxf::TagFile&) {
             return host::dxf::Measured{{AcGePoint3d(-7, 2, 0), AcGePoint3d(7, 8, 0)}, false};
         },
         AcGePoint3d(-7, -5, 0), AcGePoint3d(100, 100, 0)},
        {nullptr, AcGePoint3d(0, -5, 0), AcGePoint3d(100, 100, 0)},
    };
    for (const auto& row : rows)
    {
        const auto database =
            opened(replaced(stated, corner("EXTMAX", "-1e+20", "-1e+20") + "-1e+20",
                            corner("EXTMAX", "100.0", "100.0") + "0.0"));
        host::dxf::setMeasure(row.measure);
        const host::WorldExtents extents = host::modelExtents(host::coreOf(*database));
        host::dxf::setMeasure(nullptr);
        EXPECT_TRUE(extents.low.isEqualTo(row.low)) << extents.low.x << "," << extents.low.y;
        EXPECT_TRUE(extents.high.isEqualTo(row.high)) << extents.high.x << "," << extents.high.y;
    }
}

TEST_F(Drawing, longWorkTellsHowFarItHasCome)
{
    EmptyDrawing drawing;
    for (int i = 0; i < 40'000; ++i)
    {
        drawing.addLine(i, 0, i, 1);
    }
    const auto rises = [](const std::vector<double>& parts)
    {
        return parts.size() > 2 && parts.front() < 0.9 && parts.back() <= 1 &&
               std::ranges::is_sorted(parts);
    };
    std::vector<double> parts;
    const auto note = [&parts](double part) { parts.push_back(part); };
    EXPECT_TRUE(host::saveDrawing(drawing.database(), path.string(), note));
    EXPECT_TRUE(rises(parts)) << "saving";
    parts.clear();
    EXPECT_TRUE(host::openDrawing(path.string(), note));
    EXPECT_TRUE(rises(parts)) << "opening";
}

struct Crooked : AcDbText
{
    using AcDbEntity::setNormal;
    using AcDbText::AcDbText;
};

// No call lets such a number in; should one come in all the same, it is found by its entity.
TEST_F(Drawing, anEntityThatCannotBeSavedIsNamed)
{
    const std::string rest = " with handle 2B: a number is not finite";
    EmptyDrawing lines;
    lines.addLine(0, 0, 1, 1);
    AcDbLine* line = nullptr;
    ASSERT_EQ(acdbOpenObject(line, lines.addLine(0, 0, 1, 1), AcDb::kForWrite), Acad::eOk);
    line->setColorIndex(1);
    AcDbLine::Internals::place(*line, {AcGePoint3d(), AcGePoint3d(NAN, 0, 0)});
    line->close();
    EXPECT_EQ(host::saveDrawing(lines.database(), path.string()).failure().line,
              path.string() + ": cannot be saved: the AcDbLine" + rest);

    EmptyDrawing texts;
    texts.addLine(0, 0, 1, 1);
    auto* text = new Crooked(AcGePoint3d(), L"A", AcDbObjectId::kNull, 1);
    texts.add(text);
    text->setNormal(AcGeVector3d(NAN, 0, 1));
    EXPECT_EQ(host::saveDrawing(texts.database(), path.string()).failure().line,
              path.string() + ": cannot be saved: the AcDbText" + rest);
    EXPECT_FALSE(fs::exists(path));
}

TEST_F(Drawing, aDrawingThatCannotBeSavedSaysWhy)
{
    EmptyDrawing drawing;
    const host::Result<> saved = host::saveDrawing(drawing.database(), "/nonexistent/folder/a.dxf");
    ASSERT_FALSE(saved);
    EXPECT_NE(saved.failure().line.find("/nonexistent/folder/a.dxf"), std::string::npos);
}
}  // namespace
