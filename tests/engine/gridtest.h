// Draws a grid in an empty drawing, as the command does.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "engine/buildgrid.h"
#include "output/entities.h"
#include "output/frame.h"
#include "tests/support/opendrawing.h"

namespace tests
{
// By default continuous lines 10 apart in both directions from the origin, without labels.
struct GridOptions
{
    double HorStep = 10;
    double VertStep = 10;
    Adesk::UInt16 Color = 12;
    double crossSize = 4;
    int LookType = 0;
    int WCSBasePoint = 0;
    AcGePoint3d basePoint;
    bool needText = false;
    double heightText = 1;
    int iCountSigns = 2;
    bool bXTopScribe = true;
    bool bXBottomScribe = true;
    bool bXLeftScribe = true;
    bool bXRightScribe = true;
    bool bYTopScribe = true;
    bool bYBottomScribe = true;
    bool bYLeftScribe = true;
    bool bYRightScribe = true;
    std::wstring textXScribe = L"X=";
    std::wstring textYScribe = L"Y=";
    std::wstring textStyleName = L"Standard";
    std::wstring localeName = L"en-US";
};

struct LabelSeen
{
    std::wstring text;
    AcGePoint3d anchor;  // [wcs]
    double rotation;     // [rad]
    AcDb::TextHorzMode mode;
};

class Grid : public OpenDrawing
{
protected:
    // Draws the outline through two corners [ucs].
    void pick(const AcGePoint3d& first, const AcGePoint3d& other)
    {
        corner1 = toWcs(first);
        corner2 = toWcs(other);
        AcGePoint3dArray points;
        points.append(first);
        points.append(AcGePoint3d(first.x, other.y, 0));
        points.append(other);
        points.append(AcGePoint3d(other.x, first.y, 0));
        points.append(first);
        outline = addPolylineFrame(true, points, 250, nullptr, nullptr, ACDB_MODEL_SPACE);
    }
    // Picks 30 x 20 from the origin, with steps of 10: two vertical lines and one horizontal line
    // are inside.
    void pickSheet() { pick({0, 0, 0}, {30, 20, 0}); }

    AcDbObjectIdArray build() const
    {
        const GridOptions& o = options;
        return buildGrid(outline, corner1, corner2, o.HorStep, o.VertStep, o.Color, o.crossSize,
                         o.LookType, o.WCSBasePoint, o.basePoint, o.needText, o.heightText,
                         o.iCountSigns, o.bXTopScribe, o.bXBottomScribe, o.bXLeftScribe,
                         o.bXRightScribe, o.bYTopScribe, o.bYBottomScribe, o.bYLeftScribe,
                         o.bYRightScribe, o.textXScribe.c_str(), o.textYScribe.c_str(),
                         o.textStyleName.c_str(), o.localeName.c_str());
    }

    void wantNoLabels()
    {
        options.bXTopScribe = options.bXBottomScribe = options.bXLeftScribe =
            options.bXRightScribe = options.bYTopScribe = options.bYBottomScribe =
                options.bYLeftScribe = options.bYRightScribe = false;
    }

    // Returns the labels in order of creation.
    std::vector<LabelSeen> labels() const
    {
        std::vector<LabelSeen> seen;
        const AcDbObjectIdArray ids = entities();
        for (int i = 0; i < ids.length(); ++i)
        {
            AcDbObjectPointer<AcDbText> text(ids[i], AcDb::kForRead);
            if (text.openStatus() == Acad::eOk)
            {
                seen.push_back({text->textStringConst(), text->alignmentPoint(), text->rotation(),
                                text->horizontalMode()});
            }
        }
        return seen;
    }
    std::vector<std::wstring> sortedTexts() const
    {
        std::vector<std::wstring> all = texts();
        std::sort(all.begin(), all.end());
        return all;
    }
    bool hasLine(const AcGePoint3d& start, const AcGePoint3d& end) const
    {
        const std::vector<LineSeen> all = lines();
        return std::any_of(all.begin(), all.end(),
                           [&](const LineSeen& line)
                           { return near(line.start, start) && near(line.end, end); });
    }

    GridOptions options;
    AcGePoint3d corner1;  // [wcs]
    AcGePoint3d corner2;  // [wcs]
    AcDbObjectId outline;
};
}  // namespace tests
