#include <algorithm>
#include <cstdio>
#include <map>
#include <optional>

#include "host/database/dictionaryentries.h"
#include "host/database/drawing.h"
#include "host/database/groupmembers.h"
#include "host/database/packing.h"
#include "host/dxf/entitywriter.h"
#include "host/dxf/filesource.h"
#include "host/dxf/livestubs.h"
#include "host/dxf/save_atomic.h"
#include "host/dxf/savestate.h"
#include "host/dxf/savetables.h"
#include "host/text/foldcase.h"

namespace host::dxf
{
namespace
{
// The record's first tag with that code; applications' own data, from code 1001 on, is not asked.
std::optional<Tag> firstTag(const TagFile& file, const Record& record, int code)
{
    for (const Tag& tag : file.tags(record))
    {
        if (tag.code == code)
        {
            return tag;
        }
        if (tag.code == 1001)
        {
            break;
        }
    }
    return std::nullopt;
}

// Where what is added to a record goes: before applications' own data.
std::size_t endOfOwnTags(const TagFile& file, const Record& record)
{
    const std::optional<Tag> data = firstTag(file, record, 1001);
    return data ? data->begin : record.end;
}

void setInteger(Edits& edits, const Record& record, int code, int value)
{
    if (const std::optional<Tag> tag = firstTag(edits.file(), record, code))
    {
        edits.setValue(*tag, std::to_string(value));
        return;
    }
    edits.insert(endOfOwnTags(edits.file(), record),
                 [=](TagWriter& writer) { writer.integer(code, value); });
}

int firstInteger(const TagFile& file, const Record& record, int code, int fallback)
{
    const std::optional<Tag> tag = firstTag(file, record, code);
    return tag ? int(file.integer(*tag)) : fallback;
}

void saveLayers(Edits& edits, const FileSource& source)
{
    for (const LoadedLayer& loaded : source.layers)
    {
        const AcDbLayerTableRecord& layer = *loaded.layer;
        if (layer.isFrozen() != loaded.frozen || layer.isLocked() != loaded.locked)
        {
            const int others = firstInteger(source.file, *loaded.record, 70, 0) & ~5;
            setInteger(edits, *loaded.record, 70,
                       others | (layer.isFrozen() ? 1 : 0) | (layer.isLocked() ? 4 : 0));
        }
        if (layer.isOff() != loaded.off)
        {
            const int color = std::abs(firstInteger(source.file, *loaded.record, 62, 7));
            setInteger(edits, *loaded.record, 62, layer.isOff() ? -color : color);
        }
    }
}

// New entities of the spaces stand in ENTITIES, those of another block before its end.
std::size_t placeFor(const FileSource& source, const AcDbStub* owner)
{
    const std::wstring name = recordName(AcDbObjectId(const_cast<AcDbStub*>(owner)));
    if (name.empty() || name[0] == L'*')
    {
        const Section* entities = source.file.section("ENTITIES");
        return entities != nullptr ? entities->end : source.file.eofOffset();
    }
    bool inBlock = false;
    for (const Record& record : source.file.records("BLOCKS"))
    {
        const std::string_view type = source.file.typeName(record);
        if (type == "ENDBLK" && inBlock)
        {
            return record.begin;
        }
        if (type == "BLOCK")
        {
            for (const Tag& tag : source.file.tags(record))
            {
                inBlock |= tag.code == 2 && equalNoCase(source.codePage.decode(tag.value), name);
            }
        }
    }
    source.file.refuse(1, "a block for the new entities", "none of that name");
}

std::vector<const AcDbStub*> ownersOfNewEntities(const LiveStubs& live)
{
    std::vector<const AcDbStub*> owners;
    for (const AcDbStub* stub : live)
    {
        const AcDbStub* owner = ownerOf(stub);
        if (owner != nullptr && typeOf(owner) == AcDbBlockTableRecord::desc() &&
            std::find(owners.begin(), owners.end(), owner) == owners.end())
        {
            owners.push_back(owner);
        }
    }
    return owners;
}

void saveEntities(Edits& edits, const FileSource& source, const LiveStubs& live,
                  EntityWriter& entities)
{
    for (const AcDbStub* owner : ownersOfNewEntities(live))
    {
        const std::size_t place = placeFor(source, owner);
        const Producer produce = [&entities, owner](TagWriter& writer)
        { entities.writeEntitiesOf(owner, writer); };
        if (place == source.file.eofOffset())
        {
            edits.insert(
                place, [produce](TagWriter& writer) { writeSection(writer, "ENTITIES", produce); });
            continue;
        }
        edits.insert(place, produce);
    }
}

void writeGroup(const DictionaryEntries::Entry& entry, std::uint64_t dictionary,
                const FileSource& source, TagWriter& writer)
{
    const GroupMembers& members = GroupMembers::of(*static_cast<AcDbGroup*>(entry.stub->object));
    writer.text(0, "GROUP");
    writer.handle(5, entry.stub->handle);
    writer.text(102, "{ACAD_REACTORS");
    writer.handle(330, dictionary);
    writer.text(102, "}");
    if (source.file.release().ownership)
    {
        writer.handle(330, dictionary);
    }
    writer.text(100, "AcDbGroup");
    writer.text(300, source.codePage.encode(members.description));
    writer.integer(70, members.anonymous ? 1 : 0);
    writer.integer(71, members.selectable ? 1 : 0);
    for (const AcDbStub* member : members.inOrder())
    {
        if (!member->erased())
        {
            writer.handle(340, member->handle);
        }
    }
}

typedef std::vector<DictionaryEntries::Entry> NewGroups;

NewGroups newGroups(const DatabaseCore& core)
{
    NewGroups groups;
    const auto* dictionary = static_cast<AcDbDictionary*>(core.groupDictionary->object);
    for (const auto& entry : DictionaryEntries::of(*dictionary).inOrder())
    {
        if (!entry.loaded && !entry.stub->erased())
        {
            groups.push_back(entry);
        }
    }
    return groups;
}

void writeEntry(std::string_view key, std::uint64_t handle, TagWriter& writer)
{
    writer.text(3, key);
    writer.handle(350, handle);
}

void writeDictionary(const Release& release, std::uint64_t handle, std::uint64_t owner,
                     const Producer& entries, TagWriter& writer)
{
    writer.text(0, "DICTIONARY");
    writer.handle(5, handle);
    if (owner != 0)
    {
        writer.text(102, "{ACAD_REACTORS");
        writer.handle(330, owner);
        writer.text(102, "}");
    }
    if (release.ownership)
    {
        writer.handle(330, owner);
    }
    writer.text(100, "AcDbDictionary");
    if (release.ownership)
    {
        writer.integer(281, 1);
    }
    entries(writer);
}

// Groups need the group dictionary, and that the root dictionary; what the file lacks is made.
void saveGroups(Edits& edits, DatabaseCore& core)
{
    FileSource& source = sourceOf(core);
    const NewGroups groups = newGroups(core);
    if (groups.empty() || !source.file.release().objects)
    {
        return;
    }
    AcDbStub* dictionary = core.groupDictionary;
    if (dictionary->handle == 0)
    {
        dictionary->handle = core.nextHandle++;
    }
    const CodePage& codePage = source.codePage;
    const std::uint64_t own = dictionary->handle;
    const Producer entries = [&codePage, groups](TagWriter& writer)
    {
        for (const auto& group : groups)
        {
            writeEntry(codePage.encode(group.key), group.stub->handle, writer);
        }
    };
    const std::uint64_t root =
        source.rootDictionary != nullptr ? source.rootDictionary->handle : core.nextHandle++;
    const bool isNew = source.groupDictionary == nullptr;
    const Producer objects = [&source, groups, own, root, isNew, entries](TagWriter& writer)
    {
        if (isNew)
        {
            writeDictionary(source.file.release(), own, root, entries, writer);
        }
        for (const auto& group : groups)
        {
            writeGroup(group, own, source, writer);
        }
    };
    const Producer rootEntry = [own](TagWriter& writer) { writeEntry("ACAD_GROUP", own, writer); };
    if (!isNew)
    {
        edits.insert(endOfOwnTags(source.file, *source.groupDictionary), entries);
    }
    else if (source.rootDictionary != nullptr)
    {
        edits.insert(endOfOwnTags(source.file, *source.rootDictionary), rootEntry);
    }
    if (source.rootDictionary != nullptr)
    {
        edits.insert(source.file.section("OBJECTS")->end, objects);
        return;
    }
    const Producer all = [&source, root, rootEntry, objects](TagWriter& writer)
    {
        writeDictionary(source.file.release(), root, 0, rootEntry, writer);
        objects(writer);
    };
    const Section* section = source.file.section("OBJECTS");
    if (section != nullptr)
    {
        edits.insert(section->end, all);
        return;
    }
    edits.insert(source.file.eofOffset(),
                 [all](TagWriter& writer) { writeSection(writer, "OBJECTS", all); });
}

// The seed goes up with the objects that are saved, so a drawing left as it was stays so.
void saveHandleSeed(Edits& edits, const DatabaseCore& core, const LiveStubs& live)
{
    const FileSource& source = sourceOf(core);
    const bool repaired = !source.file.repairedRecords().empty();
    if (!repaired && ownersOfNewEntities(live).empty() && newGroups(core).empty())
    {
        return;
    }
    if (!source.file.hasHandles())
    {
        return;
    }
    const std::uint64_t seed = core.nextHandle;
    edits.setHeader("$HANDSEED", [seed](TagWriter& writer) { writer.handle(5, seed); });
}
}  // namespace

void saveRepairs(Edits& edits)
{
    const TagFile& file = edits.file();
    for (const std::size_t index : file.repairedRecords())
    {
        const Record& record = file.records()[index];
        char digits[17];
        std::snprintf(digits, sizeof digits, "%llX",
                      static_cast<unsigned long long>(record.handle));
        edits.setValue(file.handleTag(record), digits);
    }
}

std::vector<std::string> lossesOnSaving(const DatabaseCore& core)
{
    const Release& release = sourceOf(core).file.release();
    const std::size_t groups = newGroups(core).size();
    if (groups == 0 || release.objects)
    {
        return {};
    }
    return {std::string(release.name) + " has no groups: the entities are kept, " +
            (groups == 1 ? "their group is not" : "their groups are not")};
}

namespace
{
// Bytes of the new file, as far as is known before it is written.
std::size_t sizeAbout(const DatabaseCore& core, const Edits& edits)
{
    const std::size_t bytesOfLine = 160;
    return edits.file().bytes().size() + core.stubs.size() * bytesOfLine;
}

void noteChanges(Edits& edits, DatabaseCore& core, const LiveStubs& live, EntityWriter& entities)
{
    const FileSource& source = sourceOf(core);
    saveTables(edits, core, live);
    saveRepairs(edits);
    saveLayers(edits, source);
    saveEntities(edits, source, live, entities);
    saveGroups(edits, core);
    saveState(edits, core);
}
}  // namespace

void withChanges(DatabaseCore& core, const std::function<void(const Edits&)>& take)
{
    Edits edits(sourceOf(core).file);
    EntityWriter entities(core, sourceOf(core));
    const LiveStubs live = liveStubs(core);
    noteChanges(edits, core, live, entities);
    saveHandleSeed(edits, core, live);
    take(edits);
}

// Without the seed of handles: it also goes up with what was cancelled.
std::uint64_t digestOfChanges(DatabaseCore& core)
{
    Edits edits(sourceOf(core).file);
    EntityWriter entities(core, sourceOf(core));
    noteChanges(edits, core, liveStubs(core), entities);
    std::uint64_t digest = 0xCBF29CE484222325;
    const auto take = [&digest](std::string_view bytes)
    {
        for (const unsigned char byte : bytes)
        {
            digest = (digest ^ byte) * 0x100000001B3;
        }
    };
    TagWriter writer(take, edits.file().style());
    edits.writeChanges(writer);
    writer.flush();
    return digest;
}

void save(DatabaseCore& core, const std::string& path, const Progress& progress)
{
    withChanges(core, [&](const Edits& edits)
                { saveAtomically(path, edits, progress, sizeAbout(core, edits)); });
}
}  // namespace host::dxf
