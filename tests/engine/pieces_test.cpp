#include "engine/pieces.h"

#include "host/database/packing.h"
#include "tests/engine/gridtest.h"
#include "tests/support/letgo.h"

namespace
{
class WholePieces : public PieceClipper
{
public:
    explicit WholePieces(const AcDbEntity& boundary)
        : PieceClipper(boundary, false, AcGeMatrix3d(), 0)
    {
    }
    bool clip(Piece&, const AcGePoint3d&) const override { return true; }
};

class Pieces : public tests::Grid
{
protected:
    // One node in the middle of the sheet.
    GridDrawing draw() const { return draw({10}); }
    // One node at each of these x.
    GridDrawing draw(const std::vector<double>& x) const
    {
        GridRequest request = GridRequest();
        request.corner2 = corner2;
        request.HorStep = request.VertStep = 10;
        request.needText = true;
        GridLines lines;
        lines.x = x;
        lines.y.push_back(10);
        GridDrawing drawing;
        AcDbObjectPointer<AcDbEntity> boundary(outline, AcDb::kForRead);
        drawPieces(request, lines, WholePieces(*boundary.object()), drawing);
        return drawing;
    }
};

TEST_F(Pieces, noteTheEndsOfTheirLinesForTheLabels)
{
    pickSheet();
    const GridDrawing drawing = draw();
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
    const GridDrawing drawing = draw();
    EXPECT_EQ(drawing.made.length(), 0);
    EXPECT_TRUE(drawing.xLabelPoints.isEmpty());
    EXPECT_TRUE(drawing.yLabelPoints.isEmpty());
}
}  // namespace
