#include "host/database/entitystyle.h"

#include "host/database/objectstate.h"

using host::LineStyle;
using host::ObjectState;

LineStyle AcDbEntity::Internals::styleOf(const AcDbEntity& entity)
{
    LineStyle style;
    style.owner = entity.ownerId().stub();
    style.layer = entity.m_layer;
    style.linetype = entity.m_linetype;
    style.normal = entity.m_normal;
    style.linetypeScale = entity.m_linetypeScale;
    style.reactors = entity.m_reactors;
    style.color = entity.m_color;
    style.lineWeight = entity.m_lineWeight;
    style.invisible = entity.m_invisible;
    return style;
}

bool AcDbEntity::Internals::hasStyle(const AcDbEntity& entity, const LineStyle& style)
{
    const AcGeVector3d& normal = entity.m_normal;
    return ObjectState::owner(entity) == style.owner && entity.m_layer == style.layer &&
           entity.m_linetype == style.linetype && normal.x == style.normal.x &&
           normal.y == style.normal.y && normal.z == style.normal.z &&
           entity.m_linetypeScale == style.linetypeScale && entity.m_reactors == style.reactors &&
           entity.m_color == style.color && entity.m_lineWeight == style.lineWeight &&
           entity.m_invisible == style.invisible;
}

void AcDbEntity::Internals::setStyle(AcDbEntity& entity, const LineStyle& style)
{
    entity.m_layer = style.layer;
    entity.m_linetype = style.linetype;
    entity.m_normal = style.normal;
    entity.m_linetypeScale = style.linetypeScale;
    entity.m_reactors = style.reactors;
    entity.m_color = style.color;
    entity.m_lineWeight = style.lineWeight;
    entity.m_invisible = style.invisible;
    entity.m_given = all;
}

void AcDbEntity::Internals::fill(AcDbEntity& entity, const host::CurrentProperties& current)
{
    if (entity.m_given == all)
    {
        return;
    }
    if (entity.m_given == 0)
    {
        entity.m_layer = current.layer;
        entity.m_linetype = current.linetype;
        entity.m_color = current.color;
        entity.m_lineWeight = current.lineWeight;
        entity.m_linetypeScale = current.linetypeScale;
        entity.m_given = all;
        return;
    }
    const auto isOpen = [&entity](Property property) { return (entity.m_given & property) == 0; };
    entity.m_layer = isOpen(layer) ? current.layer : entity.m_layer;
    entity.m_linetype = isOpen(linetype) ? current.linetype : entity.m_linetype;
    entity.m_color = isOpen(color) ? current.color : entity.m_color;
    entity.m_lineWeight = isOpen(lineWeight) ? current.lineWeight : entity.m_lineWeight;
    entity.m_linetypeScale = isOpen(linetypeScale) ? current.linetypeScale : entity.m_linetypeScale;
    entity.m_given = all;
}
