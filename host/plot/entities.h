// Draws each kind of entity as shapes. A shape whose tags are incomplete is not drawn.
#pragma once

#include <span>
#include <string_view>

#include "host/dxf/codepage.h"
#include "host/plot/entitytags.h"
#include "host/plot/pen.h"

namespace host::plot
{
// Draws an entity. Returns false when its kind cannot be drawn. Entities that consist of several
// records or have a block are not drawn here. The pen draws in the coordinates of the space or
// block that holds the entity.
bool drawEntity(const EntityTags& entity, const dxf::CodePage& codePage, const Pen& pen);

// Draws a POLYLINE with the vertices that follow it.
void drawPolyline(const EntityTags& polyline, std::span<const EntityTags> vertices, const Pen& pen);

// Draws an entity of one kind: LWPOLYLINE, HATCH, TEXT or ATTRIB, ATTDEF, MTEXT. drawEntity calls
// these functions.
void drawLightPolyline(const EntityTags& polyline, const Pen& pen);
void drawHatch(const EntityTags& hatch, const Pen& pen);
void drawText(const EntityTags& text, const dxf::CodePage& codePage, const Pen& pen);
void drawAttributeDefinition(const EntityTags& text, const dxf::CodePage& codePage, const Pen& pen);
void drawParagraphs(const EntityTags& text, const dxf::CodePage& codePage, const Pen& pen);
}  // namespace host::plot
