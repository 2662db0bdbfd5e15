#include "engine/pieces.h"

#include "engine/labels.h"
#include "host/database/packing.h"
#include "tests/engine/gridtest.h"
#include "tests/support/letgo.h"

namespace
{
struct Drawn
{
    AcDbObjectIdArray made;
    AcGePoint3dArray xLabelPoints;
    AcGePoint3dArray yLabelPoints;
};

class Pieces : public tests::Grid
{
protected:
    // Sets one node in the middle of the sheet.
    Drawn draw() const { return draw({10}); }
    // Sets one node at each of these x.
    Drawn draw(const std::vector<double>& x) const
    {
        GridRequest request = GridRequest();
        request.corner2 = corner2;
        request.options.HorStep = request.options.VertStep = 10;
        request.options.needText = 1;
        GridLines lines;
        lines.at[0] = x;
        lines.at[1].push_back(10);
        Drawn drawn;
        AcDbObjectPointer<AcDbEntity> boundary(outline, AcDb::kForRead);
        AcGePoint3dArray corners;
        boundary->getStretchPoints(corners);
        const PieceClipper clipper(*boundary.object(), nullptr, corners, 1e-10);
        const GridLines drawnLines = drawPieces(request, lines, clipper, drawn.made);
        drawn.xLabelPoints = labelPoints(request, drawnLines, 0, clipper);
        drawn.yLabelPoints = labelPoints(request, drawnLines, 1, clipper);
        return drawn;
    }
};

TEST_F(Pieces, giveTheEndsOfTheirLinesForTheLabels)
{
    pickSheet();
    const Drawn drawing = draw();
    EXPECT_EQ(drawing.made.length(), 2);
    EXPECT_EQ(drawing.xLabelPoints.length(), 2);
    EXPECT_EQ(drawing.yLabelPoints.length(), 2);
}

TEST_F(Pieces, ofLinesCloserThanAMillionthAreLabelledOnce)
{
    pickSheet();
    EXPECT_EQ(draw({10, 10 + 9e-7}).xLabelPoints.length(), 2);
    EXPECT_EQ(draw({10, 10 + 11e-7}).xLabelPoints.length(), 4);
}

TEST_F(Pieces, thatCannotBeDrawnGetNoLabels)
{
    pickSheet();
    const tests::LetGo letGo;
    AcDbObjectPointer<AcDbBlockTableRecord> someoneElse(modelSpace(), AcDb::kForRead);
    const Drawn drawing = draw();
    EXPECT_EQ(drawing.made.length(), 0);
    EXPECT_TRUE(drawing.xLabelPoints.isEmpty());
    EXPECT_TRUE(drawing.yLabelPoints.isEmpty());
}
}  // namespace
