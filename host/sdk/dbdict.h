// The dictionary of named objects; in this host, the group dictionary. Keys are compared without
// regard to letter case.
#pragma once

#include "dbmain.h"

// A dictionary of a drawing, which owns its entries. AcDbDatabase::getGroupDictionary opens it.
class AcDbDictionary : public AcDbObject
{
public:
    ACRX_DECLARE_MEMBERS(AcDbDictionary)

    // The constructor creates an empty dictionary for the host. The destructor leaves the entries
    // alone: the database destroys them.
    AcDbDictionary();
    ~AcDbDictionary();

    // Puts a new object into the dictionary and its database and sets id [write]. The database
    // takes the object over [adopted]. The object stays open for write, and the caller closes it. A
    // key that begins with "*" becomes "*A" and the next free number; numbers of erased entries are
    // not used again. A former entry under the same key is erased. Returns eNullObjectPointer for a
    // null value, eInvalidKey for an empty or null key, and eAlreadyInDb; id is null then, and the
    // object still belongs to the caller.
    Acad::ErrorStatus setAt(const ACHAR* key, AcDbObject* value, AcDbObjectId& id);
    // Sets id to the entry under that key [read]. Returns eKeyNotFound for an unknown or null key
    // and for an erased entry; id is null then.
    Acad::ErrorStatus getAt(const ACHAR* key, AcDbObjectId& id) const;
    // Tells whether getAt finds the key [read].
    bool has(const ACHAR* key) const;
    // Returns the number of entries [read], without erased ones.
    Adesk::UInt32 numEntries() const;

    struct Internals;  // the host's own

private:
    Internals* m_internals;
};
