// A sink that asks only how far the shapes reach.
#pragma once

#include <span>
#include <string_view>

#include "host/plot/sink.h"

namespace host::plot
{
class BoxSink : public Sink
{
public:
    void path(const Points& points, bool closed, Color color) override;
    void area(const std::vector<Points>& loops, Color color) override;
    void dot(const AcGePoint3d& point, Color color) override;
    void text(const TextLine& line, Color color) override;

protected:
    // Takes points of a shape [wcs]. Together they reach as far as the shape.
    virtual void add(std::span<const AcGePoint3d> points) = 0;

private:
    // Returns the width of a text in heights of a capital letter.
    virtual double widthOf(std::wstring_view text) const = 0;
};
}  // namespace host::plot
