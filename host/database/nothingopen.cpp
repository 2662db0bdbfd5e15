#include "host/database/nothingopen.h"

#include "host/database/objectstate.h"
#include "host/database/packing.h"
#include "host/basics/breach.h"

namespace host
{
void requireNothingOpen(AcDbDatabase& database, std::string_view call)
{
    const OpenObjects& open = coreOf(database).open();
    while (!open.empty())
    {
        AcDbObject& object = open.last();
        if (!ObjectState::wasRefused(object))
        {
            breach(call, "the " + describe(object) + " was left open");
        }
        ObjectState::closeForAll(object);
    }
}
}  // namespace host
