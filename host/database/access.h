// The host's way into the private parts of its objects.
#pragma once

#include "dbents.h"
#include "host/database/core.h"

struct AcDbSymbolTable::Names
{
    std::vector<AcDbStub*> order;
    std::unordered_map<std::wstring, AcDbStub*> byFoldedName;
    // One record is looked up a million times in a row: for every entity of a grid.
    std::wstring lastName;
    AcDbStub* last = nullptr;
};

struct AcDbDictionary::Entries
{
    struct Entry
    {
        std::wstring key;
        AcDbStub* stub;
        bool loaded;  // stood in the file
    };
    std::vector<Entry> entries;
    unsigned lastAnonymous = 0;  // n of the newest "*An"
};

struct AcDbGroup::Members
{
    std::wstring description;
    bool selectable = true;
    bool anonymous = false;
    std::vector<AcDbStub*> stubs;
    // Of the line that joined last. The next is mostly like it: a line of that style is not in the
    // group yet, as members have the group among their reactors.
    std::uint32_t styleBefore = UINT32_MAX;
    std::uint32_t styleWithin = 0;

    bool addLikeTheLast(AcDbStub* member);
};

namespace host
{
// Properties of an entity that may have been set before it joins a drawing.
enum Property : unsigned char
{
    layerProperty = 1,
    linetypeProperty = 2,
    colorProperty = 4,
    lineWeightProperty = 8,
    linetypeScaleProperty = 16,
    allProperties = 31
};

struct ObjectAccess
{
    static AcDbStub* stub(const AcDbObject& object) { return object.m_stub; }
    static AcDbStub*& stub(AcDbObject& object) { return object.m_stub; }
    static AcDbStub*& owner(AcDbObject& object) { return object.m_owner; }
    static unsigned short& readers(AcDbObject& object) { return object.m_readers; }
    static bool& forWrite(AcDbObject& object) { return object.m_forWrite; }
    static bool& forgiveClose(AcDbObject& object) { return object.m_forgiveClose; }
    static bool& refused(AcDbObject& object) { return object.m_refused; }
    static bool& changed(const AcDbObject& object) { return object.m_changed; }
    static bool isOpen(const AcDbObject& object) { return object.m_forWrite || object.m_readers; }
    // Deletes an object that is the database's.
    static void destroy(AcDbObject* object);

    static AcDbSymbolTable::Names& names(AcDbSymbolTable& table) { return *table.m_names; }
    static const wchar_t*& name(AcDbSymbolTableRecord& record) { return record.m_name; }
    static AcDbDictionary::Entries& entries(AcDbDictionary& dictionary)
    {
        return *dictionary.m_entries;
    }
    static AcDbGroup::Members& members(AcDbGroup& group) { return *group.m_members; }
    static void setLayerFlags(const LayerFlags& flags);
    static void setTextStyle(AcDbTextStyleTableRecord& record, double oblique, double xScale,
                             double textSize);

    static Adesk::UInt32& reactors(AcDbEntity& entity) { return entity.m_reactors; }
    // What nobody has set comes from the drawing's current properties.
    static void fillProperties(AcDbEntity& entity, const CurrentProperties& current);
    static AcDbStub* layer(const AcDbEntity& entity) { return entity.m_layer; }
    static void setPoints(AcDbLine& line, const AcGePoint3d& start, const AcGePoint3d& end);
    static LineStyle lineStyle(const AcDbEntity& entity);
    static void applyStyle(AcDbEntity& entity, const LineStyle& style);

    static std::vector<AcDb2dVertex*>& vertices(AcDb2dPolyline& polyline)
    {
        return polyline.m_vertices;
    }
    static AcDbStub*& seqEnd(AcDb2dPolyline& polyline) { return polyline.m_seqEnd; }
};

// The object on the heap; a packed line is unpacked, a foreign object has none.
AcDbObject* resolve(AcDbStub* stub);
// Puts a closed line back into its stub.
void pack(AcDbObject* object);
// Run-time type without unpacking; null for a foreign object.
AcRxClass* typeOf(const AcDbStub* stub);
AcDbStub* layerOf(const AcDbStub* stub);
AcDbStub* ownerOf(const AcDbStub* stub);
std::uint32_t reactorsOf(const AcDbStub* stub);
// Class and handle, for the line that stops a run.
std::string describe(const AcDbObject& object);
std::string describe(const AcDbStub& stub);  // not of a foreign object
}  // namespace host
