// dime writing or reading lines: `dime_lines write LINES FILE`, `dime_lines read FILE`.
#include <dime/Input.h>
#include <dime/Model.h>
#include <dime/Output.h>
#include <dime/entities/Line.h>
#include <dime/sections/EntitiesSection.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace
{
int writeLines(unsigned long lines, const char* path)
{
    dimeModel model(true);
    model.init();
    auto* const section = new dimeEntitiesSection(model.getMemHandler());
    model.insertSection(section);
    const dimeLayer* const layer = model.addLayer("0");
    const unsigned long side = static_cast<unsigned long>(std::sqrt(double(lines) / 2));
    for (unsigned long i = 0; i < lines; ++i)
    {
        const double row = double(i / 2 / side + 1);
        const double column = double(i / 2 % side) + 0.5;
        auto* const line = new (model.getMemHandler()) dimeLine;
        const bool across = i % 2 == 0;
        line->setCoords(0, dimeVec3f(across ? column : row, across ? row : column, 0));
        line->setCoords(1, dimeVec3f(across ? column + 1 : row, across ? row : column + 1, 0));
        line->setLayer(layer);
        line->setColorNumber(12);
        model.addEntity(line);
    }
    dimeOutput out;
    return out.setFilename(path) && model.write(&out) ? 0 : 1;
}
}  // namespace

int main(int count, char** arguments)
{
    const std::string_view mode = count > 2 ? arguments[1] : "";
    if (mode == "write" && count == 4)
    {
        return writeLines(std::strtoul(arguments[2], nullptr, 10), arguments[3]);
    }
    dimeInput in;
    dimeModel model;
    const bool read = mode == "read" && in.setFile(arguments[2]) && model.read(&in);
    return read ? 0 : 2;
}
