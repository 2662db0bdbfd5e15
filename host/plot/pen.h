// Draws in the coordinates of an entity, with its colour.
#pragma once

#include "gemat3d.h"
#include "host/plot/sink.h"

namespace host::plot
{
// What is not finite in the world is left out.
class Pen
{
public:
    Pen(Sink& sink, const AcGeMatrix3d& toWorld, Color color)  // sink [borrowed]
        : m_sink(&sink), m_toWorld(toWorld), m_color(color)
    {
    }

    // A pen for coordinates within those of this one.
    Pen within(const AcGeMatrix3d& local) const { return {*m_sink, m_toWorld * local, m_color}; }
    Pen withinPlane(const AcGeVector3d& normal) const;

    void path(const Points& points, bool closed = false) const;
    void area(const std::vector<Points>& loops) const;
    void dot(const AcGePoint3d& point) const;
    void ray(const AcGePoint3d& from, const AcGeVector3d& along, bool both) const;
    void text(const TextLine& line) const;

private:
    bool carry(const Points& points, Points& carried) const;

    Sink* m_sink;
    AcGeMatrix3d m_toWorld;
    Color m_color;
};
}  // namespace host::plot
