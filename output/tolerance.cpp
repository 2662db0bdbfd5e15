#include "output/tolerance.h"

BorrowedTolerance::BorrowedTolerance(double equalPoint) : m_former(AcGeContext::gTol.equalPoint())
{
    AcGeContext::gTol.setEqualPoint(equalPoint);
}

BorrowedTolerance::~BorrowedTolerance()
{
    AcGeContext::gTol.setEqualPoint(m_former);
}
