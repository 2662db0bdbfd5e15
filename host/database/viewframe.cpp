#include "host/database/viewframe.h"

namespace host
{
AcGeMatrix3d viewFrame(const View& view)
{
    AcGeMatrix3d frame = AcGeMatrix3d::planeToWorld(view.direction) *
                         AcGeMatrix3d::rotation(-view.twist, AcGeVector3d(0, 0, 1));
    return frame.setTranslation(view.target.asVector());
}
}  // namespace host
