// The user's coordinate system and its variables, on loan for the length of a command.
#pragma once

#include "hostapi/host.h"

// A whole-number system variable, set to 0 until it is given back. One that cannot be read is left
// alone both times: what is not known cannot be put back.
class ZeroedVariable
{
public:
    explicit ZeroedVariable(const ACHAR* name);  // [borrowed] name
    void giveBack() const;

private:
    const ACHAR* m_name;
    resbuf m_value;
    bool m_known;
};

// Sets UCSICON and UCSFOLLOW to 0, then the UCS into the screen plane; gives the UCS, UCSICON and
// UCSFOLLOW back on every way out, in that order. A UCS that could not be set is not taken back, or
// the user would land one step before his own.
class BorrowedFrame
{
public:
    BorrowedFrame();
    ~BorrowedFrame();

private:
    BorrowedFrame(const BorrowedFrame&);
    BorrowedFrame& operator=(const BorrowedFrame&);

    // The order of these three is the order of borrowing.
    ZeroedVariable m_icon;
    ZeroedVariable m_follow;
    bool m_ucsSet;
};
