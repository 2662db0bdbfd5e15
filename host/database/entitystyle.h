// What entities have in common: layer, colour, linetype and the like.
#pragma once

#include "dbmain.h"
#include "host/database/currentproperties.h"
#include "host/database/linestyle.h"

// What has been set before an entity joins a drawing stays; the rest is filled in once, at the
// append or by setDatabaseDefaults.
struct AcDbEntity::Internals
{
    // Properties that are filled in unless they were set, a bit each.
    enum Property : unsigned char
    {
        layer = 1,
        linetype = 2,
        color = 4,
        lineWeight = 8,
        linetypeScale = 16,
        all = 31
    };

    static host::LineStyle styleOf(const AcDbEntity& entity);
    // All of it counts as set afterwards.
    static void setStyle(AcDbEntity& entity, const host::LineStyle& style);
    // What has not been set comes from the drawing's current properties.
    static void fill(AcDbEntity& entity, const host::CurrentProperties& current);

    // The number of the list of persistent reactors.
    static std::uint32_t reactors(const AcDbEntity& entity) { return entity.m_reactors; }
    static void setReactors(AcDbEntity& entity, std::uint32_t list) { entity.m_reactors = list; }
};

namespace host
{
using EntityStyle = AcDbEntity::Internals;
}  // namespace host
