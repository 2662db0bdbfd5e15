#include "app/docdata.h"

namespace
{
AcApDataManager<CDocData> docData;
}  // namespace
