// An empty drawing that is open in the host, for tests of code that draws into it.
#pragma once

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "hostapi/host.h"
#include "host/database/drawing.h"

namespace tests
{
struct LineSeen
{
    AcGePoint3d start;
    AcGePoint3d end;
};

// Opens the drawing. Before it closes the drawing, it checks that no object is left open and that
// the global tolerance is restored.
class OpenDrawing : public testing::Test
{
protected:
    void SetUp() override;
    void TearDown() override;

    AcDbDatabase& database() const;
    host::DrawingState& state() const { return host::stateOf(database()); }

    AcDbObjectId modelSpace() const;

    // Sets a UCS with this origin [wcs], turned about Z by an angle in degrees.
    void setUcs(const AcGePoint3d& origin, double degrees = 0);
    void setUcs(const AcGeMatrix3d& ucsToWorld) { state().ucs().toWorld = ucsToWorld; }

    // Returns the entities made since SetUp that are not erased, without vertices.
    AcDbObjectIdArray entities() const;
    std::vector<LineSeen> lines() const;  // [wcs], in order of creation
    std::vector<std::wstring> texts() const;

    // Closes an object that the test leaves open on purpose.
    void closeLeftOpen(const AcDbObjectId& id);

private:
    std::size_t m_begin = 0;
    AcGeTol m_tolerance;
};

// Returns the result of `read` for an object of that class.
template <class Object, class Read>
auto inspect(const AcDbObjectId& id, Read read)
{
    AcDbObjectPointer<Object> object(id, AcDb::kForRead);
    EXPECT_EQ(object.openStatus(), Acad::eOk);
    return read(*object.object());
}

template <class Object>
bool isA(const AcDbObjectId& id)
{
    AcDbObjectPointer<Object> object(id, AcDb::kForRead);
    return object.openStatus() == Acad::eOk;
}

testing::AssertionResult near(const AcGePoint3d& left, const AcGePoint3d& right,
                              double tolerance = 1e-9);
}  // namespace tests
