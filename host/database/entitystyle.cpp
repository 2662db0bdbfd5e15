#include "host/database/entitystyle.h"

using host::LineStyle;

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
    const auto isOpen = [&entity](Property property) { return (entity.m_given & property) == 0; };
    entity.m_layer = isOpen(layer) ? current.layer : entity.m_layer;
    entity.m_linetype = isOpen(linetype) ? current.linetype : entity.m_linetype;
    entity.m_color = isOpen(color) ? current.color : entity.m_color;
    entity.m_lineWeight = isOpen(lineWeight) ? current.lineWeight : entity.m_lineWeight;
    entity.m_linetypeScale = isOpen(linetypeScale) ? current.linetypeScale : entity.m_linetypeScale;
    entity.m_given = all;
}
