#include "host/database/strict.h"

#include "host/database/access.h"
#include "host/runtime/breach.h"

namespace host
{
void requireNothingOpen(AcDbDatabase& database, std::string_view call)
{
    std::vector<AcDbObject*>& open = database.core().open;
    while (!open.empty())
    {
        AcDbObject* object = open.back();
        if (!ObjectAccess::refused(*object))
        {
            breach(call, "the " + describe(*object) + " was left open");
        }
        ObjectAccess::readers(*object) = 1;
        object->close();
    }
}
}  // namespace host
