// The properties that all entities have: layer, colour, linetype and others.
#pragma once

#include "dbmain.h"
#include "host/database/currentproperties.h"
#include "host/database/linestyle.h"

// A property that was set before the entity joins a drawing keeps its value. The others are filled
// in once, at the append or by setDatabaseDefaults.
struct AcDbEntity::Internals
{
    // The properties that are filled in unless they were set, one bit each.
    enum Property : unsigned char
    {
        layer = 1,
        linetype = 2,
        color = 4,
        lineWeight = 8,
        linetypeScale = 16,
        all = 31
    };

    // Returns all properties of the entity.
    static host::LineStyle styleOf(const AcDbEntity& entity);
    // Tells whether styleOf would return that style.
    static bool hasStyle(const AcDbEntity& entity, const host::LineStyle& style);
    // Sets all properties of a style. They all count as set afterwards.
    static void setStyle(AcDbEntity& entity, const host::LineStyle& style);
    // Fills in the properties that were not set from the drawing's current properties.
    static void fill(AcDbEntity& entity, const host::CurrentProperties& current);

    // Return and set the number of the entity's list of persistent reactors.
    static std::uint32_t reactors(const AcDbEntity& entity) { return entity.m_reactors; }
    static void setReactors(AcDbEntity& entity, std::uint32_t list) { entity.m_reactors = list; }
};

namespace host
{
using EntityStyle = AcDbEntity::Internals;
}  // namespace host
