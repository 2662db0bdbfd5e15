#include <bit>
#include <cmath>
#include <cstdio>

#include "tests/relations/gridcase.h"

namespace
{
// Computes FNV-1a over all visible properties of a grid.
class Digest
{
public:
    void add(std::uint64_t value)
    {
        for (int byte = 0; byte < 8; ++byte)
        {
            m_hash = (m_hash ^ (value >> (8 * byte) & 0xff)) * 0x100000001b3;
        }
    }
    void add(double value) { add(std::bit_cast<std::uint64_t>(value)); }
    void add(const AcGePoint3d& point)
    {
        add(point.x);
        add(point.y);
        add(point.z);
    }
    void add(const AcDbEntity& entity)
    {
        const AcDbLine* const line = AcDbLine::cast(&entity);
        line != nullptr ? add(*line) : add(*AcDbText::cast(&entity));
    }
    std::uint64_t value() const { return m_hash; }

private:
    void add(const AcDbLine& line)
    {
        add(line.startPoint());
        add(line.endPoint());
    }
    void add(const AcDbText& text)
    {
        for (const wchar_t* at = text.textStringConst(); *at != 0; ++at)
        {
            add(static_cast<std::uint64_t>(*at));
        }
        add(text.alignmentPoint());
        add(static_cast<std::uint64_t>(text.horizontalMode()));
        // The angle is rounded to twelve decimals: the C library selects its arc tangent by the
        // processor, and the last bit differs.
        add(static_cast<std::uint64_t>(std::llround(text.rotation() * 1e12)));
    }

    std::uint64_t m_hash = 0xcbf29ce484222325;
};

class SameGrid : public relations::Sheet
{
};

TEST_F(SameGrid, comesOutOfEveryCompilerToTheLastBit)
{
    relations::Chance chance(4);
    Digest digest;
    std::uint64_t count = 0;
    for (int i = 0; i < 3000; ++i)
    {
        const auto shape = static_cast<relations::Shape>(chance.below(3));
        const relations::GridCase asked = randomCase(chance, shape);
        const AcDbObjectIdArray made = drawGrid(drawOutline(asked), asked);
        for (int j = 0; j < made.length(); ++j)
        {
            AcDbObjectPointer<AcDbEntity> entity(made[j], AcDb::kForRead);
            ASSERT_EQ(entity.openStatus(), Acad::eOk);
            digest.add(*entity.object());
            ++count;
        }
    }
    digest.add(count);
    std::printf("digest of %llu entities: %016llx\n", static_cast<unsigned long long>(count),
                static_cast<unsigned long long>(digest.value()));
    EXPECT_EQ(digest.value(), 0x17e9e398efd4f4b3u);
}
}  // namespace
