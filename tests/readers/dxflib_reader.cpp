// Lists what dxflib finds in a drawing's model space, a line for each LINE and TEXT.
#include <dxflib/dl_creationadapter.h>
#include <dxflib/dl_dxf.h>

#include <cstdio>

namespace
{
class Lister : public DL_CreationAdapter
{
public:
    void addBlock(const DL_BlockData&) override { m_inBlock = true; }
    void endBlock() override { m_inBlock = false; }

    void addLine(const DL_LineData& line) override
    {
        if (!m_inBlock)
        {
            std::printf("LINE %.9f %.9f %.9f %.9f\n", line.x1, line.y1, line.x2, line.y2);
        }
    }

    void addText(const DL_TextData& text) override
    {
        if (!m_inBlock)
        {
            std::printf("TEXT %s\n", text.text.c_str());
        }
    }

private:
    bool m_inBlock = false;
};
}  // namespace

int main(int count, char** arguments)
{
    DL_Dxf dxf;
    Lister lister;
    return count == 2 && dxf.in(arguments[1], &lister) ? 0 : 1;
}
