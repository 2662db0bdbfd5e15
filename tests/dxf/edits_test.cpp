#include "host/dxf/edits.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/dxf/smalldrawing.h"

using namespace host::dxf;

namespace
{
std::string written(const Edits& edits)
{
    std::string text;
    TagWriter writer([&text](std::string_view bytes) { text += bytes; }, edits.file().style());
    edits.write(writer);
    writer.flush();
    return text;
}

Tag tagOf(const TagFile& file, std::size_t record, int code)
{
    for (const Tag& tag : file.tags(file.records()[record]))
    {
        if (tag.code == Code(code))
        {
            return tag;
        }
    }
    throw std::logic_error("no such tag");
}

const std::string original =
    drawingWith("0\nLINE\n5\n2F\n 62\n     3\n8\nWalls\n0\nPOINT\n5\n30\n");
}  // namespace

TEST(Edits, withoutChangesTheFileStaysByteForByte)
{
    for (const std::string& text :
         {original, withCrLf(original), original + " \n\x1a", "\xEF\xBB\xBF" + original})
    {
        const TagFile file = TagFile::fromText(text, "FILE");
        const Edits edits(file);
        EXPECT_TRUE(edits.empty());
        EXPECT_EQ(written(edits), text);
    }
}

TEST(Edits, aNewValueChangesItsLineOnly)
{
    for (const bool crLf : {false, true})
    {
        const std::string text = crLf ? withCrLf(original) : original;
        const TagFile file = TagFile::fromText(text, "FILE");
        Edits edits(file);
        edits.setValue(tagOf(file, 0, 8), "Doors");
        edits.setValue(tagOf(file, 0, 62), "12");
        edits.setValue(tagOf(file, 1, 5), "30");
        EXPECT_EQ(written(edits), replaced(replaced(text, "Walls", "Doors"), "     3", "12"));
    }
}

TEST(Edits, theSameValueIsNoChange)
{
    const TagFile file = TagFile::fromText(original, "FILE");
    Edits edits(file);
    edits.setValue(tagOf(file, 0, 62), "3");
    edits.setValue(tagOf(file, 0, 8), "Walls");
    EXPECT_TRUE(edits.empty());
}

TEST(Edits, tagsAreAddedAndRemovedInTheFilesOwnStyle)
{
    const std::string text = withCrLf(replaced(original, "0\nSECTION", "  0\nSECTION"));
    const TagFile file = TagFile::fromText(text, "FILE");
    Edits edits(file);
    edits.remove(tagOf(file, 0, 62));
    edits.insertAfter(tagOf(file, 0, 8), [](TagWriter& w) { w.integer(Code(62), 5); });
    EXPECT_EQ(written(edits), replaced(replaced(text, " 62\r\n     3\r\n", ""), "Walls\r\n",
                                       "Walls\r\n 62\r\n5\r\n"));
}

TEST(Edits, recordsAreRemovedReplacedAndAddedWhereTheyBelong)
{
    const TagFile file = TagFile::fromText(original, "FILE");
    const Record& line = file.records()[0];
    const Record& point = file.records()[1];
    Edits edits(file);
    // Noted in no order; at one place the first noted comes first.
    edits.insert(file.eofOffset(), [](TagWriter& w) { w.raw("<section>"); });
    edits.replace(line.begin, line.end, [](TagWriter& w) { w.raw("<line>"); });
    edits.insert(line.begin, [](TagWriter& w) { w.raw("<before>"); });
    edits.insert(point.end, [](TagWriter& w) { w.raw("<first>"); });
    edits.insert(point.end, [](TagWriter& w) { w.raw("<second>"); });
    edits.remove(point.begin, point.end);

    const std::string head = original.substr(0, line.begin);
    EXPECT_EQ(written(edits), head + "<before><line><first><second>0\nENDSEC\n<section>0\nEOF\n");
}

TEST(Edits, aHeaderVariableIsChangedOrAdded)
{
    const TagFile file = TagFile::fromText(original, "FILE");
    Edits edits(file);
    edits.setHeader("$INSUNITS", [](TagWriter& w) { w.integer(Code(70), 6); });
    edits.setHeader("$UCSORG", [](TagWriter& w) { w.point(Code(10), 1, 2, 3); });
    edits.setHeader("$LTSCALE", [](TagWriter& w) { w.real(Code(40), 2); });
    EXPECT_EQ(written(edits),
              replaced(original, "70\n4\n",
                       "70\n6\n9\n$UCSORG\n10\n1.0\n20\n2.0\n30\n3.0\n9\n$LTSCALE\n40\n2.0\n"));
}

TEST(Edits, aHeaderVariableThatIsTheSameIsNoChange)
{
    const TagFile file = TagFile::fromText(original, "FILE");
    Edits edits(file);
    edits.setHeader("$INSUNITS", [](TagWriter& w) { w.integer(Code(70), 4); });
    EXPECT_TRUE(edits.empty());
}

TEST(Edits, changesThatOverlapAreAnErrorOfTheProgram)
{
    const TagFile file = TagFile::fromText(original, "FILE");
    const Record& line = file.records()[0];
    {
        Edits edits(file);
        edits.remove(line.begin, line.end);
        edits.setValue(tagOf(file, 0, 8), "Doors");
        EXPECT_THROW(written(edits), std::logic_error);
    }
    {
        Edits edits(file);
        edits.setValue(tagOf(file, 0, 8), "Doors");
        edits.setValue(tagOf(file, 0, 8), "Windows");
        EXPECT_THROW(written(edits), std::logic_error);
    }
}

TEST(Edits, newRecordsAreMadeOnlyWhileTheFileIsWritten)
{
    const TagFile file = TagFile::fromText(original, "FILE");
    Edits edits(file);
    int made = 0;
    edits.insert(file.section("ENTITIES")->end,
                 [&](TagWriter& w)
                 {
                     for (; made < 100000; ++made)
                     {
                         w.handle(Code(5), made + 0x100);
                     }
                 });
    EXPECT_EQ(made, 0);
    EXPECT_GT(written(edits).size(), 700000u);
    EXPECT_EQ(made, 100000);
}
