// dxflib writing or reading lines: `dxflib_lines write LINES FILE`, `dxflib_lines read FILE`.
#include <dxflib/dl_creationadapter.h>
#include <dxflib/dl_dxf.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace
{
void writeLines(unsigned long lines, const char* path)
{
    DL_Dxf dxf;
    const std::unique_ptr<DL_WriterA> out(dxf.out(path, DL_VERSION_2000));
    dxf.writeHeader(*out);
    out->sectionEnd();
    out->sectionEntities();
    const DL_Attributes attributes("0", 12, -1, "CONTINUOUS", 1.0);
    const unsigned long side = static_cast<unsigned long>(std::sqrt(double(lines) / 2));
    for (unsigned long i = 0; i < lines; ++i)
    {
        const double row = double(i / 2 / side + 1);
        const double column = double(i / 2 % side) + 0.5;
        const DL_LineData line = i % 2 == 0 ? DL_LineData(column, row, 0, column + 1, row, 0)
                                            : DL_LineData(row, column, 0, row, column + 1, 0);
        dxf.writeLine(*out, line, attributes);
    }
    out->sectionEnd();
    out->dxfEOF();
    out->close();
}

class Counter : public DL_CreationAdapter
{
public:
    void addLine(const DL_LineData&) override { ++lines; }
    unsigned long lines = 0;
};
}  // namespace

int main(int count, char** arguments)
{
    const std::string_view mode = count > 2 ? arguments[1] : "";
    if (mode == "write" && count == 4)
    {
        writeLines(std::strtoul(arguments[2], nullptr, 10), arguments[3]);
        return 0;
    }
    DL_Dxf dxf;
    Counter counter;
    const bool read = mode == "read" && dxf.in(arguments[2], &counter);
    std::printf("%lu lines\n", counter.lines);
    return read ? 0 : 2;
}
