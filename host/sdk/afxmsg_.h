// MFC's message maps: which member function answers which control.
//
// In the class: DECLARE_MESSAGE_MAP(). In its source:
//     BEGIN_MESSAGE_MAP(CMyDialog, CAcUiDialog)
//         ON_BN_CLICKED(100, &CMyDialog::OnPick)
//     END_MESSAGE_MAP()
// A class is asked before its base; in one map the first entry that fits is taken.
#pragma once

#include "windows.h"

#define afx_msg

class CObject
{
public:
    virtual ~CObject() {}
};

struct AFX_MSGMAP;

class CCmdTarget : public CObject
{
protected:
    static const AFX_MSGMAP* GetThisMessageMap();
    virtual const AFX_MSGMAP* GetMessageMap() const;
};

typedef void (CCmdTarget::*AFX_PMSG)();

struct AFX_MSGMAP_ENTRY
{
    UINT code;  // what the control tells
    UINT id;    // of the control
    AFX_PMSG handler;
};

struct AFX_MSGMAP
{
    const AFX_MSGMAP* (*base)();      // null at the root
    const AFX_MSGMAP_ENTRY* entries;  // ended by a null handler
};

#define DECLARE_MESSAGE_MAP()                     \
protected:                                        \
    static const AFX_MSGMAP* GetThisMessageMap(); \
    virtual const AFX_MSGMAP* GetMessageMap() const;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)              \
    const AFX_MSGMAP* theClass::GetMessageMap() const       \
    {                                                       \
        return GetThisMessageMap();                         \
    }                                                       \
    const AFX_MSGMAP* theClass::GetThisMessageMap()         \
    {                                                       \
        const auto baseMap = &baseClass::GetThisMessageMap; \
        static const AFX_MSGMAP_ENTRY mapEntries[] = {
#define ON_BN_CLICKED(id, handler) {BN_CLICKED, id, static_cast<AFX_PMSG>(handler)},

#define END_MESSAGE_MAP()                                \
    {                                                    \
        0, 0, nullptr                                    \
    }                                                    \
    }                                                    \
    ;                                                    \
    static const AFX_MSGMAP map = {baseMap, mapEntries}; \
    return &map;                                         \
    }
