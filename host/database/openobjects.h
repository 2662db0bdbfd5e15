// The open objects of a drawing.
#pragma once

#include <vector>

#include "dbmain.h"

namespace host
{
// Contains an object once, from its opening to its last close, in the order of the openings. The
// objects are [borrowed] until they are closed.
class OpenObjects
{
public:
    OpenObjects() = default;
    // Deletes the lines that are still open, because such a line has no other owner unless it stays
    // on the heap when it is closed.
    ~OpenObjects();
    OpenObjects(const OpenObjects&) = delete;
    OpenObjects& operator=(const OpenObjects&) = delete;

    // Adds an object [borrowed] that has just been opened.
    void add(AcDbObject& object) { m_objects.push_back(&object); }
    // Removes an object, which must have been added.
    void remove(const AcDbObject& object)
    {
        // Usually the object opened last is closed first.
        if (m_objects.back() == &object)
        {
            m_objects.pop_back();
            return;
        }
        removeEarlier(object);
    }

    bool empty() const { return m_objects.empty(); }
    AcDbObject& last() const { return *m_objects.back(); }

private:
    void removeEarlier(const AcDbObject& object);

    std::vector<AcDbObject*> m_objects;
};
}  // namespace host
