#include "command/borrowedframe.h"

#include "engine/viewframe.h"

ZeroedVariable::ZeroedVariable(const ACHAR* name)
    : m_name(name), m_value(), m_known(acedGetVar(name, &m_value) == RTNORM)
{
    if (!m_known)
    {
        return;
    }
    resbuf zero = resbuf();
    zero.restype = RTSHORT;
    acedSetVar(m_name, &zero);
}

void ZeroedVariable::giveBack() const
{
    if (m_known)
    {
        acedSetVar(m_name, &m_value);
    }
}

BorrowedFrame::BorrowedFrame()
    : m_icon(L"UCSICON"), m_follow(L"UCSFOLLOW"), m_ucsSet(setViewFrameUcs() == Acad::eOk)
{
}

BorrowedFrame::~BorrowedFrame()
{
    // The UCS is restored first: if UCSFOLLOW were already back at 1, the host would swing the view
    // to plan.
    if (m_ucsSet)
    {
        acedRestorePreviousUCS();
    }
    m_icon.giveBack();
    m_follow.giveBack();
}
