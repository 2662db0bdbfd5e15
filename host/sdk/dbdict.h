// Dictionary of named objects; here the group dictionary.
#pragma once

#include "dbmain.h"

class AcDbDictionary : public AcDbObject
{
public:
    ACRX_DECLARE_MEMBERS(AcDbDictionary)

    AcDbDictionary();
    ~AcDbDictionary();

    // Needs write. Puts the object into the dictionary and the database; it stays open for write. A
    // key that begins with "*" becomes "*A" and the next free number, and numbers of erased entries
    // are not used again. An entry under a used key is erased. eInvalidKey for an empty one.
    Acad::ErrorStatus setAt(const ACHAR* key, AcDbObject* value, AcDbObjectId& id);
    // eKeyNotFound, also for an erased entry; the id is null then.
    Acad::ErrorStatus getAt(const ACHAR* key, AcDbObjectId& id) const;
    bool has(const ACHAR* key) const;
    Adesk::UInt32 numEntries() const;  // erased ones do not count

    struct Entries;  // the host's own

private:
    friend struct host::ObjectAccess;
    Entries* m_entries;
};
