#include "output/entities.h"
#include "tests/support/letgo.h"
#include "tests/support/meter.h"
#include "tests/support/opendrawing.h"

using tests::inspect;

namespace
{
class Group : public tests::OpenDrawing
{
protected:
    AcDbObjectIdArray addLines(int count)
    {
        AcDbObjectIdArray ids;
        for (int i = 0; i < count; ++i)
        {
            ids.append(addLine(true, {0, double(i), 0}, {10, double(i), 0}, 0, nullptr, nullptr,
                               ACDB_MODEL_SPACE));
        }
        return ids;
    }
    static AcDbObjectIdArray membersOf(const AcDbObjectId& group)
    {
        return inspect<AcDbGroup>(group,
                                  [](const AcDbGroup& opened)
                                  {
                                      AcDbObjectIdArray ids;
                                      opened.allEntityIds(ids);
                                      return ids;
                                  });
    }
};

std::vector<int> everyNth(int step, int end)
{
    std::vector<int> positions;
    for (int i = 0; i < end; i += step)
    {
        positions.push_back(i);
    }
    return positions;
}

TEST_F(Group, holdsTheEntitiesInTheirOrderUnnamedAndSelectable)
{
    const AcDbObjectIdArray ids = addLines(5);
    const AcDbObjectId group = makeGroup(ids, L"*");
    ASSERT_FALSE(group.isNull());
    EXPECT_TRUE(membersOf(group) == ids);
    inspect<AcDbGroup>(group,
                       [](const AcDbGroup& opened)
                       {
                           EXPECT_TRUE(opened.isAnonymous());
                           EXPECT_TRUE(opened.isSelectable());
                           EXPECT_STREQ(opened.description(), L"*");
                           return 0;
                       });
}

TEST_F(Group, eachIsANewOne)
{
    const AcDbObjectIdArray ids = addLines(2);
    const AcDbObjectId first = makeGroup(ids, L"*");
    const AcDbObjectId second = makeGroup(ids, L"*");
    EXPECT_NE(first, second);
    EXPECT_EQ(membersOf(first).length(), 2);
    EXPECT_EQ(membersOf(second).length(), 2);
}

TEST_F(Group, movesTheMeterAboutTwentyTimesAndNeverToItsEnd)
{
    struct Row
    {
        int count;
        int step;
    };
    const Row rows[] = {{1, 1}, {19, 1}, {39, 1}, {40, 2}, {100, 5}, {119, 5}, {120, 6}};
    for (const Row& row : rows)
    {
        tests::Meter meter;
        makeGroup(addLines(row.count), L"*");
        EXPECT_EQ(meter.label, L"Progress: ");
        EXPECT_EQ(meter.minimum, 0);
        EXPECT_EQ(meter.maximum, row.count);
        EXPECT_EQ(meter.positions, everyNth(row.step, row.count)) << row.count;
        EXPECT_EQ(meter.restored, 1);
    }
}

TEST_F(Group, ofNothingIsMadeWithAMeterAllTheSame)
{
    tests::Meter meter;
    const AcDbObjectId group = makeGroup(AcDbObjectIdArray(), L"*");
    ASSERT_FALSE(group.isNull());
    EXPECT_EQ(membersOf(group).length(), 0);
    EXPECT_EQ(meter.started, 1);
    EXPECT_EQ(meter.maximum, 0);
    EXPECT_TRUE(meter.positions.empty());
    EXPECT_EQ(meter.restored, 1);
}

TEST_F(Group, leavesOutWhatTheHostRefuses)
{
    AcDbObjectIdArray ids = addLines(2);
    ids.append(AcDbObjectId::kNull);
    ids.append(ids.first());
    EXPECT_EQ(membersOf(makeGroup(ids, L"*")).length(), 2);
}

TEST_F(Group, isNotMadeAndNoMeterShownWhenTheDictionaryIsTaken)
{
    const tests::LetGo letGo;
    const AcDbObjectIdArray ids = addLines(2);
    AcDbDictionary* taken = nullptr;
    ASSERT_EQ(database().getGroupDictionary(taken, AcDb::kForRead), Acad::eOk);
    tests::Meter meter;
    EXPECT_TRUE(makeGroup(ids, L"*").isNull());
    EXPECT_EQ(meter.started, 0);
    EXPECT_EQ(meter.restored, 0);
    EXPECT_EQ(taken->numEntries(), 0u);
    taken->close();
}

TEST_F(Group, isNotMadeWithoutADrawing)
{
    const tests::LetGo letGo;
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    tests::Meter meter;
    EXPECT_TRUE(makeGroup(AcDbObjectIdArray(), L"*").isNull());
    EXPECT_EQ(meter.started, 0);
}

TEST_F(Group, thatTheDictionaryDoesNotTakeGivesNoId)
{
    const tests::LetGo letGo;
    tests::Meter meter;
    EXPECT_TRUE(makeGroup(addLines(3), L"").isNull());
    EXPECT_EQ(meter.restored, 1);
}
}  // namespace
