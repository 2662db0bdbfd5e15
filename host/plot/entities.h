// Draws each kind of entity as shapes. A shape whose tags are incomplete is not drawn.
#pragma once

#include <span>
#include <string_view>

#include "host/dxf/schema/entities.h"
#include "host/plot/entitytags.h"
#include "host/plot/pen.h"

namespace host::plot
{
// Draws an entity. Returns false when its kind cannot be drawn. Entities that consist of several
// records or have a block are not drawn here. The pen draws in the coordinates of the space or
// block that holds the entity.
bool drawEntity(const EntityTags& entity, const Pen& pen);

// Draws a POLYLINE with the vertices that follow it.
void drawPolyline(const EntityTags& entity, std::span<const schema::vertex::Shape> vertices,
                  const Pen& pen);

// Draws an attribute that is part of a block: its text. One that is not constant belongs to the
// inserts of the block and is not drawn.
void drawConstantAttribute(const EntityTags& entity, const Pen& pen);

// Draws an entity of one kind: LWPOLYLINE, HATCH, TEXT, ATTRIB, ATTDEF, MTEXT. drawEntity calls
// these functions.
void drawLightPolyline(const EntityTags& entity, const Pen& pen);
void drawHatch(const EntityTags& entity, const Pen& pen);
void drawText(const EntityTags& entity, const Pen& pen);
void drawAttribute(const EntityTags& entity, const Pen& pen);
void drawAttributeDefinition(const EntityTags& entity, const Pen& pen);
void drawParagraphs(const EntityTags& entity, const Pen& pen);
}  // namespace host::plot
