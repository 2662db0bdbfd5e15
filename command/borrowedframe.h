// Borrows the user's coordinate system and its variables for the length of a command.
#pragma once

#include "hostapi/host.h"

// A whole-number system variable that is 0 until giveBack. A variable that cannot be read is not
// changed at all, because its value could not be restored.
class ZeroedVariable
{
public:
    // Reads the variable and sets it to 0. The name is [borrowed] while this object lives.
    explicit ZeroedVariable(const ACHAR* name);

    // Sets the variable to the value that the constructor read, if it could read one.
    void giveBack() const;

private:
    const ACHAR* m_name;
    resbuf m_value;
    bool m_known;
};

// Works in the plane of the screen: UCSICON and UCSFOLLOW are 0 and the UCS lies in that plane
// while this object lives.
class BorrowedFrame
{
public:
    // Sets UCSICON and UCSFOLLOW to 0 and then changes the UCS.
    BorrowedFrame();

    // Restores the UCS, UCSICON and UCSFOLLOW in that order. If the constructor could not change
    // the UCS, the destructor does not step back either: a step would lead to the UCS that the user
    // had before the present one.
    ~BorrowedFrame();

private:
    BorrowedFrame(const BorrowedFrame&);
    BorrowedFrame& operator=(const BorrowedFrame&);

    // The members are constructed in this order, so it is the order of the changes.
    ZeroedVariable m_icon;
    ZeroedVariable m_follow;
    bool m_ucsSet;
};
