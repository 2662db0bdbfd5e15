#include "tests/support/opendrawing.h"

#include "host/database/packing.h"
#include "host/database/nothingopen.h"
#include "host/documents/documentmanager.h"
#include "host/dxf/drawingfile.h"

namespace tests
{
void OpenDrawing::SetUp()
{
    host::documents().open(host::newDrawing());
    m_begin = host::coreOf(database()).objects().size();
    m_tolerance = AcGeContext::gTol;
}

void OpenDrawing::TearDown()
{
    EXPECT_EQ(AcGeContext::gTol.equalPoint(), m_tolerance.equalPoint());
    EXPECT_EQ(AcGeContext::gTol.equalVector(), m_tolerance.equalVector());
    acdbHostApplicationServices()->setWorkingDatabase(&database());
    host::requireNothingOpen(database(), "the end of a test");
    host::documents().close();
}

AcDbDatabase& OpenDrawing::database() const
{
    return *host::documents().document()->database();
}

AcDbObjectId OpenDrawing::modelSpace() const
{
    return AcDbObjectId(host::coreOf(database()).roots()[host::Root::modelSpace]);
}

void OpenDrawing::setUcs(const AcGePoint3d& origin, double degrees)
{
    AcGeMatrix3d ucs = AcGeMatrix3d::rotation(degrees * M_PI / 180, AcGeVector3d::kZAxis);
    setUcs(ucs.setTranslation(origin.asVector()));
}

AcDbObjectIdArray OpenDrawing::entities() const
{
    AcDbObjectIdArray ids;
    const host::ObjectStore& stubs = host::coreOf(database()).objects();
    for (std::size_t i = m_begin; i < stubs.size(); ++i)
    {
        const AcRxClass* const type = host::typeOf(&stubs[i]);
        const bool drawn = type != nullptr && type->isDerivedFrom(AcDbEntity::desc()) &&
                           !type->isDerivedFrom(AcDb2dVertex::desc());
        if (drawn && !stubs[i].erased())
        {
            ids.append(AcDbObjectId(&stubs[i]));
        }
    }
    return ids;
}

std::vector<LineSeen> OpenDrawing::lines() const
{
    std::vector<LineSeen> seen;
    const AcDbObjectIdArray ids = entities();
    for (int i = 0; i < ids.length(); ++i)
    {
        AcDbObjectPointer<AcDbLine> line(ids[i], AcDb::kForRead);
        if (line.openStatus() == Acad::eOk)
        {
            seen.push_back({line->startPoint(), line->endPoint()});
        }
    }
    return seen;
}

std::vector<std::wstring> OpenDrawing::texts() const
{
    std::vector<std::wstring> seen;
    const AcDbObjectIdArray ids = entities();
    for (int i = 0; i < ids.length(); ++i)
    {
        AcDbObjectPointer<AcDbText> text(ids[i], AcDb::kForRead);
        if (text.openStatus() == Acad::eOk)
        {
            seen.push_back(text->textStringConst());
        }
    }
    return seen;
}

void OpenDrawing::closeLeftOpen(const AcDbObjectId& id)
{
    AcDbObject* const object = host::resolve(id.stub());
    ASSERT_TRUE(object->isReadEnabled() || object->isWriteEnabled());
    object->close();
}

testing::AssertionResult near(const AcGePoint3d& left, const AcGePoint3d& right, double tolerance)
{
    if (left.distanceTo(right) <= tolerance)
    {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << left.x << ',' << left.y << ',' << left.z << " is not "
                                       << right.x << ',' << right.y << ',' << right.z;
}
}  // namespace tests
