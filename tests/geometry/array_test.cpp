#include "acarray.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "gedblar.h"
#include "geintarr.h"
#include "gepnt3da.h"

using testing::ElementsAre;
using testing::ExitedWithCode;

namespace
{
AcGeIntArray numbers(std::initializer_list<int> values)
{
    AcGeIntArray array;
    for (const int value : values)
    {
        array.append(value);
    }
    return array;
}

// Can be copied and not moved, so that an entry left behind when the array grows still holds.
struct Holder
{
    Holder() = default;
    explicit Holder(const std::shared_ptr<int>& value) : held(value) {}
    Holder(const Holder&) = default;
    Holder& operator=(const Holder&) = default;

    std::shared_ptr<int> held;
};

template <typename T>
std::vector<T> entries(const AcArray<T>& array)
{
    return {array.asArrayPtr(), array.asArrayPtr() + array.length()};
}
}  // namespace

TEST(Arrays, aNewArrayIsEmptyAndHoldsNoMemory)
{
    const AcGeIntArray array;
    EXPECT_TRUE(array.isEmpty());
    EXPECT_EQ(array.length(), 0);
    EXPECT_EQ(array.physicalLength(), 0);
    EXPECT_EQ(array.growLength(), 8);
    EXPECT_EQ(array.asArrayPtr(), nullptr);
}

TEST(Arrays, appendGivesTheIndexOfTheNewEntry)
{
    AcGeIntArray array;
    EXPECT_EQ(array.append(7), 0);
    EXPECT_EQ(array.append(8), 1);
    EXPECT_EQ(array.last(), 8);
    EXPECT_EQ(array.first(), 7);
    EXPECT_EQ(array.logicalLength(), 2);
}

TEST(Arrays, aFullArrayGrowsByAtLeastItsGrowLength)
{
    AcGeIntArray array(2, 5);
    array.append(1);
    array.append(2);
    EXPECT_EQ(array.physicalLength(), 2);
    array.append(3);
    EXPECT_EQ(array.physicalLength(), 7);
}

TEST(Arrays, appendingMillionsMovesEachEntryOnlyAFewTimes)
{
    AcArray<long long> array;
    int growths = 0;
    for (int i = 0; i < 2'000'000; ++i)
    {
        growths += array.length() == array.physicalLength();
        array.append(i);
    }
    EXPECT_LT(growths, 50);
    EXPECT_EQ(array[1'999'999], 1'999'999);
}

TEST(Arrays, anEntryOfTheArrayItselfCanBeAppendedAndInserted)
{
    AcArray<std::string> array(1, 1);
    array.append("a text too long to be kept within the string object");
    array.append(array[0]);
    EXPECT_EQ(array[1], array[0]);
    array.insertAt(0, array[1]);
    EXPECT_EQ(array[0], array[2]);
    array.append(array);
    EXPECT_EQ(array.length(), 6);
    EXPECT_EQ(array[5], array[0]);
}

TEST(Arrays, entriesAreInsertedAndRemovedInPlace)
{
    AcGeIntArray array = numbers({1, 2, 3});
    array.insertAt(0, 10).insertAt(2, 20).insertAt(5, 30);
    EXPECT_THAT(entries(array), ElementsAre(10, 1, 20, 2, 3, 30));
    array.removeAt(2).removeFirst().removeLast();
    EXPECT_THAT(entries(array), ElementsAre(1, 2, 3));
}

TEST(Arrays, removeTakesOnlyTheFirstEqualEntry)
{
    AcGeIntArray array = numbers({4, 5, 4});
    EXPECT_TRUE(array.remove(4));
    EXPECT_THAT(entries(array), ElementsAre(5, 4));
    EXPECT_FALSE(array.remove(9));
    EXPECT_EQ(array.length(), 2);
}

TEST(Arrays, removingAllKeepsTheMemory)
{
    AcGeIntArray array = numbers({1, 2, 3});
    array.removeAll();
    EXPECT_TRUE(array.isEmpty());
    EXPECT_EQ(array.physicalLength(), 8);
}

TEST(Arrays, findLooksFromTheGivenEntryOn)
{
    const AcGeIntArray array = numbers({4, 5, 4});
    int at = -1;
    EXPECT_TRUE(array.find(4, at));
    EXPECT_EQ(at, 0);
    EXPECT_TRUE(array.find(4, at, 1));
    EXPECT_EQ(at, 2);
    EXPECT_FALSE(array.find(5, at, 2));
    EXPECT_EQ(at, 2);
    EXPECT_TRUE(array.contains(5));
    EXPECT_FALSE(array.contains(5, 2));
}

TEST(Arrays, pointsAreFoundWithinTheSharedTolerance)
{
    AcGePoint3dArray array;
    array.append(AcGePoint3d(1, 2, 3));
    EXPECT_TRUE(array.contains(AcGePoint3d(1, 2, 3 + 9e-11)));
    EXPECT_FALSE(array.contains(AcGePoint3d(1, 2, 3 + 2e-10)));
}

TEST(Arrays, aLongerLogicalLengthAddsPointsAtTheOrigin)
{
    AcGePoint3dArray array;
    array.append(AcGePoint3d(1, 2, 3));
    array.setLogicalLength(3);
    EXPECT_EQ(array[0], AcGePoint3d(1, 2, 3));
    EXPECT_EQ(array[2], AcGePoint3d::kOrigin);
    array.setLogicalLength(1);
    EXPECT_EQ(array.length(), 1);
}

TEST(Arrays, aShorterPhysicalLengthCutsTheArray)
{
    AcGeIntArray array = numbers({1, 2, 3});
    array.setPhysicalLength(2);
    EXPECT_THAT(entries(array), ElementsAre(1, 2));
    EXPECT_EQ(array.physicalLength(), 2);
    array.setPhysicalLength(0);
    EXPECT_TRUE(array.isEmpty());
    array.append(5);
    EXPECT_THAT(entries(array), ElementsAre(5));
}

TEST(Arrays, aCopyHasItsOwnEntriesAndTheGrowLengthOfItsSource)
{
    AcGeIntArray source(0, 3);
    source.append(1);
    AcGeIntArray copy(source);
    copy[0] = 2;
    EXPECT_EQ(source[0], 1);
    EXPECT_EQ(copy.growLength(), 3);
}

TEST(Arrays, anAssignedArrayKeepsItsOwnGrowLength)
{
    AcGeIntArray source(0, 3);
    source.append(1);
    AcGeIntArray target(0, 5);
    target.append(7);
    target.append(8);
    target = source;
    EXPECT_TRUE(target == source);
    EXPECT_EQ(target.growLength(), 5);
    target = *&target;
    EXPECT_TRUE(target == source);
}

TEST(Arrays, aMovedArrayHandsItsEntriesOver)
{
    AcGeIntArray source = numbers({1, 2});
    const int* const memory = source.asArrayPtr();
    AcGeIntArray target(std::move(source));
    EXPECT_EQ(target.asArrayPtr(), memory);
    source = std::move(target);
    EXPECT_EQ(source.asArrayPtr(), memory);
    EXPECT_THAT(entries(source), ElementsAre(1, 2));
}

TEST(Arrays, equalArraysHaveTheSameEntriesInTheSameOrder)
{
    EXPECT_TRUE(numbers({1, 2}) == numbers({1, 2}));
    EXPECT_FALSE(numbers({1, 2}) == numbers({2, 1}));
    EXPECT_FALSE(numbers({1, 2}) == numbers({1, 2, 3}));
}

TEST(Arrays, entriesAreSetSwappedAndReversed)
{
    AcGeIntArray array = numbers({1, 2, 3});
    array.setAt(1, 9).swap(0, 2);
    EXPECT_THAT(entries(array), ElementsAre(3, 9, 1));
    array.reverse();
    EXPECT_THAT(entries(array), ElementsAre(1, 9, 3));
    array.setAll(array[2]);
    EXPECT_THAT(entries(array), ElementsAre(3, 3, 3));
}

TEST(Arrays, entriesWithMemoryOfTheirOwnAreMadeAndFreedOnce)
{
    const auto shared = std::make_shared<int>(1);
    {
        AcArray<Holder> array;
        for (int i = 0; i < 100; ++i)
        {
            array.append(Holder(shared));
        }
        array.insertAt(50, Holder(shared));
        array.removeAt(0);
        array.setLogicalLength(110);
        EXPECT_EQ(array.last().held, nullptr);
        EXPECT_EQ(shared.use_count(), 101);
        array.setPhysicalLength(10);
        EXPECT_EQ(shared.use_count(), 11);
        AcArray<Holder> other;
        other = array;
        EXPECT_EQ(shared.use_count(), 21);
    }
    EXPECT_EQ(shared.use_count(), 1);
}

TEST(ArraysDeathTest, anIndexOutsideTheEntriesStopsTheRunAndNamesTheCall)
{
    AcGeIntArray array = numbers({1, 2, 3});
    AcGeIntArray empty(4);
    EXPECT_EXIT(array[3], ExitedWithCode(1), "AcArray::operator\\[\\]: index 3 is not below 3");
    EXPECT_EXIT(array.at(-1), ExitedWithCode(1), "AcArray::at: index -1 is not below 3");
    EXPECT_EXIT(array.setAt(3, 0), ExitedWithCode(1), "AcArray::setAt");
    EXPECT_EXIT(array.insertAt(4, 0), ExitedWithCode(1), "AcArray::insertAt");
    EXPECT_EXIT(array.removeAt(3), ExitedWithCode(1), "AcArray::removeAt");
    EXPECT_EXIT(array.swap(0, 3), ExitedWithCode(1), "AcArray::swap");
    EXPECT_EXIT(array.setLogicalLength(-1), ExitedWithCode(1), "AcArray::setLogicalLength");
    EXPECT_EXIT(empty.first(), ExitedWithCode(1), "AcArray::first");
    EXPECT_EXIT(empty.last(), ExitedWithCode(1), "AcArray::last");
    EXPECT_EXIT(empty.removeLast(), ExitedWithCode(1), "AcArray::removeAt");
}
