#include "app/docdata.h"

namespace
{
netrax::AcApDataManager<CDocData> docData;
}  // namespace
