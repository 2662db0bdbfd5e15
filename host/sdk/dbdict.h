// Dictionary of named objects; here the group dictionary. Letter case of keys does not count.
#pragma once

#include "dbmain.h"

// A dictionary of a drawing; it owns its entries. The database gives it (getGroupDictionary).
class AcDbDictionary : public AcDbObject
{
public:
    ACRX_DECLARE_MEMBERS(AcDbDictionary)

    // An empty dictionary; the host makes it. Its entries are the database's and stay.
    AcDbDictionary();
    ~AcDbDictionary();

    // Puts a new object into the dictionary and its database and sets id [write]. The object is the
    // database's then [adopted]; it stays open for write, and the caller closes it. A key that
    // begins with "*" becomes "*A" and the next free number; numbers of erased entries are not used
    // again. A former entry under the same key is erased. eNullObjectPointer for a null value,
    // eInvalidKey for an empty or null key, eAlreadyInDb; id is null then, and the object stays the
    // caller's.
    Acad::ErrorStatus setAt(const ACHAR* key, AcDbObject* value, AcDbObjectId& id);
    // Sets id to the entry under that key [read]. eKeyNotFound, also for an erased entry; id is
    // null then.
    Acad::ErrorStatus getAt(const ACHAR* key, AcDbObjectId& id) const;
    // Whether getAt finds the key [read].
    bool has(const ACHAR* key) const;
    // How many entries there are [read]; erased ones do not count.
    Adesk::UInt32 numEntries() const;

    struct Internals;  // the host's own

private:
    Internals* m_internals;
};
