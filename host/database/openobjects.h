// The objects of a drawing that are open.
#pragma once

#include <vector>

#include "dbmain.h"

namespace host
{
// An object stands here once from its opening to its last close, in the order of the openings.
class OpenObjects
{
public:
    OpenObjects() = default;
    // Deletes the lines that are still open: an open line is nobody else's.
    ~OpenObjects();
    OpenObjects(const OpenObjects&) = delete;
    OpenObjects& operator=(const OpenObjects&) = delete;

    void add(AcDbObject& object) { m_objects.push_back(&object); }
    // Only of an object that was added.
    void remove(const AcDbObject& object);

    bool empty() const { return m_objects.empty(); }
    AcDbObject& last() const { return *m_objects.back(); }

private:
    std::vector<AcDbObject*> m_objects;
};
}  // namespace host
