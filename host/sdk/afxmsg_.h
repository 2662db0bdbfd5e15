// MFC's message maps: which member function answers which control.
//
// In the class: DECLARE_MESSAGE_MAP(). In its source:
//     BEGIN_MESSAGE_MAP(CMyDialog, CAcUiDialog)
//         ON_BN_CLICKED(100, &CMyDialog::OnPick)
//     END_MESSAGE_MAP()
// A class is asked before its base. Within one map the first entry that fits is taken.
#pragma once

#include "windows.h"

// Marks a member function that a message map names; it has no effect.
#define afx_msg

// Root of MFC's classes.
class CObject
{
public:
    virtual ~CObject() {}  // an object may be deleted through its root
};

struct AFX_MSGMAP;

// Whatever has a message map.
class CCmdTarget : public CObject
{
protected:
    // The map of this class, and that of the object's own class [borrowed]. Both live for good.
    static const AFX_MSGMAP* GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;
};

// A handler: a member function without arguments of any class derived from CCmdTarget.
typedef void (CCmdTarget::*AFX_PMSG)();

// One line of a map. BEGIN_MESSAGE_MAP and its companions make it; nobody writes it by hand.
struct AFX_MSGMAP_ENTRY
{
    UINT code;         // what the control tells
    UINT id;           // of the control
    AFX_PMSG handler;  // null in the line that ends the map
};

// The map of one class.
struct AFX_MSGMAP
{
    const AFX_MSGMAP* (*base)();      // null at the root
    const AFX_MSGMAP_ENTRY* entries;  // ended by a null handler
};

// Stands in the body of a class with a map; what follows it is protected.
#define DECLARE_MESSAGE_MAP()                     \
protected:                                        \
    static const AFX_MSGMAP* GetThisMessageMap(); \
    virtual const AFX_MSGMAP* GetMessageMap() const;

// Begins the map of theClass, whose direct base is baseClass, in one source.
#define BEGIN_MESSAGE_MAP(theClass, baseClass)              \
    const AFX_MSGMAP* theClass::GetMessageMap() const       \
    {                                                       \
        return GetThisMessageMap();                         \
    }                                                       \
    const AFX_MSGMAP* theClass::GetThisMessageMap()         \
    {                                                       \
        const auto baseMap = &baseClass::GetThisMessageMap; \
        static const AFX_MSGMAP_ENTRY mapEntries[] = {
// The handler is called with each click on the button with that id.
#define ON_BN_CLICKED(id, handler) {BN_CLICKED, id, static_cast<AFX_PMSG>(handler)},

// Ends the map.
#define END_MESSAGE_MAP()                                \
    {                                                    \
        0, 0, nullptr                                    \
    }                                                    \
    }                                                    \
    ;                                                    \
    static const AFX_MSGMAP map = {baseMap, mapEntries}; \
    return &map;                                         \
    }
