// Sets the members of table records that only the host sets.
#pragma once

#include "dbsymtb.h"

// The name of a record is [borrowed] from its table, which keeps it as long as the table lives.
struct AcDbSymbolTableRecord::Internals
{
    static const wchar_t* name(const AcDbSymbolTableRecord& record) { return record.m_name; }
    // Sets the name [borrowed], which must outlive the record.
    static void setName(AcDbSymbolTableRecord& record, const wchar_t* name)
    {
        record.m_name = name;
    }
};

namespace host
{
struct LayerFlags
{
    bool frozen, locked, off;

    bool operator==(const LayerFlags&) const = default;
};
}  // namespace host

// Changes a layer whether it is open or not, without a note in the undo log.
struct AcDbLayerTableRecord::Internals
{
    static void set(AcDbLayerTableRecord& layer, const host::LayerFlags& flags)
    {
        layer.m_frozen = flags.frozen;
        layer.m_locked = flags.locked;
        layer.m_off = flags.off;
    }
};

// Only the loader sets a text style.
struct AcDbTextStyleTableRecord::Internals
{
    // `oblique` is in [rad]. `textSize` is in drawing units; 0 means that the style does not fix
    // the size.
    static void set(AcDbTextStyleTableRecord& style, double oblique, double xScale, double textSize)
    {
        style.m_oblique = oblique;
        style.m_xScale = xScale;
        style.m_textSize = textSize;
    }
};

namespace host
{
// Reads or sets layers and text styles as the classes above describe.
inline LayerFlags flagsOf(const AcDbLayerTableRecord& layer)
{
    return {layer.isFrozen(), layer.isLocked(), layer.isOff()};
}
inline void setFlags(AcDbLayerTableRecord& layer, const LayerFlags& flags)
{
    AcDbLayerTableRecord::Internals::set(layer, flags);
}
inline void setTextStyle(AcDbTextStyleTableRecord& style, double oblique, double xScale,
                         double textSize)
{
    AcDbTextStyleTableRecord::Internals::set(style, oblique, xScale, textSize);
}
}  // namespace host
