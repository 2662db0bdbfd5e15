#include "tests/relations/plaingrid.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "output/entities.h"
#include "output/frame.h"
#include "output/labels.h"
#include "output/tolerance.h"
#include "tests/relations/plain.h"

namespace relations
{
namespace plain
{
void orderCorners(AcGePoint3d& corner1, AcGePoint3d& corner2)
{
    for (const unsigned axis : {0u, 1u})
    {
        if (corner1[axis] > corner2[axis])
        {
            std::swap(corner1[axis], corner2[axis]);
        }
    }
}

namespace
{
double toleranceOf(const Grid& grid)
{
    double largest = largestCoordinate(toWcs(AcGePoint3d::kOrigin));
    for (const AcGePoint3d& wcs : {grid.corner1, grid.corner2, grid.base})
    {
        const AcGePoint3d point = isMeasurable(wcs) ? wcs : grid.corner1;
        largest = std::max({largest, largestCoordinate(point), largestCoordinate(toUcs(point))});
    }
    return atLeastRounding(AcGeContext::gTol.equalPoint(), largest);
}

void addTiltedText(Grid& grid)
{
    const ACHAR* const text = grid.locale.CompareNoCase(L"ru-RU") == 0
                                  ? L"Плоскость рисования не параллельна плоскости XY в МСК"
                                  : L"Current plane is not parallel to XY plane in WCS";
    const AcGePoint3d middle = toUcs(grid.corner1 + (grid.corner2 - grid.corner1) / 2);
    grid.add(addLabelText(true, text, middle, std::abs(grid.corner2.x - grid.corner1.x) / 30.0, 0,
                          grid.color, grid.style, AcDb::kTextMid, AcDb::kTextVertMid,
                          ACDB_MODEL_SPACE));
}

void widen(Grid& grid)
{
    orderCorners(grid.corner1, grid.corner2);
    for (int i = 0; i < grid.outline.length(); ++i)
    {
        for (const unsigned axis : {0u, 1u})
        {
            const double at = grid.outline[i][axis];
            grid.corner1[axis] = std::min(grid.corner1[axis], at);
            grid.corner2[axis] = std::max(grid.corner2[axis], at);
        }
    }
}

void drawInWorld(Grid& grid)
{
    if (std::abs(grid.corner1.z - grid.corner2.z) > AcGeContext::gTol.equalPoint())
    {
        addTiltedText(grid);
        return;
    }
    const Edges edges = edgesOf(grid);
    grid.boundary->getStretchPoints(grid.outline);
    widen(grid);
    drawNodes(grid, grid.corner1.z);
    labelInWorld(grid, edges);
}

AcDbObjectId addRectangle(const AcGePoint3d& low, const AcGePoint3d& high)
{
    AcGePoint3dArray points;
    for (const AcGePoint3d& corner :
         {low, AcGePoint3d(high.x, low.y, 0), high, AcGePoint3d(low.x, high.y, 0), low})
    {
        points.append(corner);
    }
    auto* const rectangle = new AcDb2dPolyline(AcDb::k2dSimplePoly, points, 0.0, Adesk::kTrue);
    rectangle->setVisibility(AcDb::kInvisible, true);
    AcDbObjectId id;
    appendToBlock(rectangle, id, ACDB_MODEL_SPACE);
    return id;
}

void drawInUcs(Grid& grid)
{
    for (AcGePoint3d* const point : {&grid.corner1, &grid.corner2, &grid.base})
    {
        *point = toUcs(*point);
    }
    orderCorners(grid.corner1, grid.corner2);
    const AcDbObjectId id = addRectangle(grid.corner1, grid.corner2);
    {
        AcDbObjectPointer<AcDb2dPolyline> rectangle(id, AcDb::kForRead);
        grid.rectangle = rectangle.object();
        drawNodes(grid, 0);
        labelInUcs(grid);
    }
    eraseEntity(id);
}
}  // namespace
}  // namespace plain

template <CarriedOn carriedOn>
AcDbObjectIdArray buildPlainGrid(AcDbObjectId boundaryId, AcGePoint3d corner1, AcGePoint3d corner2,
                                 double HorStep, double VertStep, Adesk::UInt16 Color,
                                 double crossSize, int LookType, int WCSBasePoint,
                                 AcGePoint3d basePoint, bool needText, double heightText,
                                 int iCountSigns, bool bXTopScribe, bool bXBottomScribe,
                                 bool bXLeftScribe, bool bXRightScribe, bool bYTopScribe,
                                 bool bYBottomScribe, bool bYLeftScribe, bool bYRightScribe,
                                 const CString& textXScribe, const CString& textYScribe,
                                 const CString& textStyleName, const CString& localeName)
{
    const plain::Labels x = {bXTopScribe, bXBottomScribe, bXLeftScribe, bXRightScribe, textXScribe};
    const plain::Labels y = {bYTopScribe, bYBottomScribe, bYLeftScribe, bYRightScribe, textYScribe};
    const bool labelled = needText && isMeasurable(heightText);
    plain::Grid grid = {
        corner1,       corner2,           basePoint, HorStep,    VertStep,    Color, crossSize,
        LookType == 0, WCSBasePoint != 0, labelled,  heightText, iCountSigns, x,     y,
        textStyleName, localeName,        carriedOn};
    AcDbObjectPointer<AcDbEntity> boundary(boundaryId, AcDb::kForRead);
    if (boundary.openStatus() == Acad::eOk && isMeasurable(corner1) && isMeasurable(corner2))
    {
        const BorrowedTolerance tolerance(plain::toleranceOf(grid));
        grid.boundary = boundary.object();
        grid.inUcs ? plain::drawInUcs(grid) : plain::drawInWorld(grid);
    }
    return grid.made;
}

template decltype(buildPlainGrid<CarriedOn::wholeLine>) buildPlainGrid<CarriedOn::wholeLine>;
template decltype(buildPlainGrid<CarriedOn::piece>) buildPlainGrid<CarriedOn::piece>;
}  // namespace relations
