// Draws in the coordinates of an entity, with its colour.
#pragma once

#include "gemat3d.h"
#include "host/plot/sink.h"

namespace host::plot
{
// Passes shapes to a sink [wcs]. A shape with a coordinate that is not finite there is left out.
class Pen
{
public:
    // The sink [borrowed] outlives the pen. `toWorld` maps the entity's coordinates to [wcs].
    Pen(Sink& sink, const AcGeMatrix3d& toWorld, Color color)
        : m_sink(&sink), m_toWorld(toWorld), m_color(color)
    {
    }

    // Returns a pen for coordinates that `local` maps to the coordinates of this pen.
    Pen within(const AcGeMatrix3d& local) const { return {*m_sink, m_toWorld * local, m_color}; }
    // Returns a pen for the object coordinate system of a plane.
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
