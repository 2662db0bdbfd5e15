#include "tests/plot/drawn.h"

#include <cmath>
#include <cstdio>
#include <sstream>

#include "host/plot/scene.h"
#include "host/windows/text.h"

using namespace host::plot;

namespace tests
{
namespace
{
std::string number(double value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.6g", std::abs(value) < 1e-9 ? 0 : value);
    return text;
}

template <class T>
std::string show(const T& point)
{
    const std::string flat = number(point.x) + "," + number(point.y);
    return std::abs(point.z) < 1e-9 ? flat : flat + "," + number(point.z);
}

std::string show(const Points& points)
{
    const std::size_t most = 6;
    if (points.size() > most)
    {
        return " " + std::to_string(points.size()) + " points " + show(points.front()) + " " +
               show(points[points.size() / 2]) + " " + show(points.back());
    }
    std::string text;
    for (const AcGePoint3d& point : points)
    {
        text += " " + show(point);
    }
    return text;
}

std::string show(host::Color color)
{
    const auto part = [](double value) { return unsigned(std::lround(value * 255)); };
    char text[16];
    std::snprintf(text, sizeof text, " #%02x%02x%02x", part(color.red), part(color.green),
                  part(color.blue));
    return text == std::string(" #000000") ? "" : text;
}

class Teller : public Sink
{
public:
    std::string told;

    void path(const Points& points, bool closed, host::Color color) override
    {
        told += (closed ? "closed" : "path") + show(points) + show(color) + "\n";
    }
    void area(const std::vector<Points>& loops, host::Color color) override
    {
        told += "area";
        for (std::size_t i = 0; i < loops.size(); ++i)
        {
            told += (i > 0 ? " /" : "") + show(loops[i]);
        }
        told += show(color) + "\n";
    }
    void dot(const AcGePoint3d& point, host::Color color) override
    {
        told += "dot " + show(point) + show(color) + "\n";
    }
    void ray(const AcGePoint3d& from, const AcGeVector3d& along, bool both,
             host::Color color) override
    {
        told += (both ? "xline " : "ray ") + show(from) + " > " + show(along) + show(color) + "\n";
    }
    void text(const TextLine& line, host::Color color) override
    {
        told += "text " + show(line.origin) + " > " + show(line.along) + " ^ " + show(line.up) +
                " left:" + number(line.across) + " below:" + number(line.above) + " " +
                host::toUtf8(line.text) + show(color) + "\n";
    }
};
}  // namespace

std::string dxfText(const std::string& tags)
{
    std::istringstream words(tags);
    std::string text, word;
    while (words >> word)
    {
        for (char& letter : word)
        {
            letter = letter == '_' ? ' ' : letter;
        }
        text += word + "\n";
    }
    return text;
}

std::string drawn(const std::string& tags, long mostFromBlocks)
{
    const auto file = host::dxf::TagFile::fromText(dxfText(tags + " 0 EOF"), "FILE");
    Scene scene(file, mostFromBlocks);
    Teller teller;
    scene.draw(teller);
    const std::string leftOut = scene.leftOut();
    return teller.told + (leftOut.empty() ? "" : "not drawn: " + leftOut + "\n");
}

std::string drawnEntities(const std::string& tags)
{
    return drawn("0 SECTION 2 ENTITIES " + tags + " 0 ENDSEC");
}
}  // namespace tests
