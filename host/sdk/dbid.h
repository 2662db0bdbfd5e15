// Identifier of an object in a drawing database.
#pragma once

#include "acdb.h"

class AcDbDatabase;
class AcDbStub;

// A value; names one object for as long as its database lives, erased or not.
class AcDbObjectId
{
public:
    AcDbObjectId() : m_stub(nullptr) {}

    static const AcDbObjectId kNull;

    bool isNull() const { return m_stub == nullptr; }
    void setNull() { m_stub = nullptr; }
    bool isValid() const { return m_stub != nullptr; }
    bool isErased() const;           // false for a null id
    AcDbDatabase* database() const;  // null for a null id

    bool operator==(const AcDbObjectId& other) const { return m_stub == other.m_stub; }
    bool operator!=(const AcDbObjectId& other) const { return m_stub != other.m_stub; }
    bool operator<(const AcDbObjectId& other) const { return m_stub < other.m_stub; }

    // The host's own.
    explicit AcDbObjectId(AcDbStub* stub) : m_stub(stub) {}
    AcDbStub* stub() const { return m_stub; }

private:
    AcDbStub* m_stub;
};
