// MFC's message maps, which tell which member function handles the messages of which control.
//
// A class contains DECLARE_MESSAGE_MAP(). Its source contains:
//     BEGIN_MESSAGE_MAP(CMyDialog, CAcUiDialog)
//         ON_BN_CLICKED(100, &CMyDialog::OnPick)
//     END_MESSAGE_MAP()
// A class handles a message before its base does. Within one map the first matching entry is used.
#pragma once

#include "windows.h"

// Marks a member function that a message map names. It has no effect.
#define afx_msg

// The root of MFC's classes.
class CObject
{
public:
    virtual ~CObject() {}  // an object may be deleted through its root
};

struct AFX_MSGMAP;

// An object that has a message map.
class CCmdTarget : public CObject
{
protected:
    // Return the map of this class and that of the object's own class [borrowed]. Both are good as
    // long as the module is loaded.
    static const AFX_MSGMAP* GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;
};

// A handler: a member function without arguments of any class derived from CCmdTarget.
typedef void (CCmdTarget::*AFX_PMSG)();

// One entry of a map. BEGIN_MESSAGE_MAP and its companion macros create it.
struct AFX_MSGMAP_ENTRY
{
    UINT code;         // the notification code of the control
    UINT id;           // the id of the control
    AFX_PMSG handler;  // null in the entry that ends the map
};

// The map of one class.
struct AFX_MSGMAP
{
    const AFX_MSGMAP* (*base)();      // null at the root
    const AFX_MSGMAP_ENTRY* entries;  // the last one has a null handler
};

// Declares the map in the body of a class. The members that follow it are protected.
#define DECLARE_MESSAGE_MAP()                     \
protected:                                        \
    static const AFX_MSGMAP* GetThisMessageMap(); \
    virtual const AFX_MSGMAP* GetMessageMap() const;

// Begins the map of theClass, whose direct base is baseClass. It stands in exactly one source.
#define BEGIN_MESSAGE_MAP(theClass, baseClass)              \
    const AFX_MSGMAP* theClass::GetMessageMap() const       \
    {                                                       \
        return GetThisMessageMap();                         \
    }                                                       \
    const AFX_MSGMAP* theClass::GetThisMessageMap()         \
    {                                                       \
        const auto baseMap = &baseClass::GetThisMessageMap; \
        static const AFX_MSGMAP_ENTRY mapEntries[] = {
// Makes each click on the button with that id call the handler.
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
