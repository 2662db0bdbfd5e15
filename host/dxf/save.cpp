#include "host/dxf/save.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <map>
#include <optional>

#include "host/database/dictionaryentries.h"
#include "host/database/drawing.h"
#include "host/database/groupmembers.h"
#include "host/database/packing.h"
#include "host/dxf/entitywriter.h"
#include "host/dxf/filesource.h"
#include "host/dxf/headervariables.h"
#include "host/dxf/livestubs.h"
#include "host/dxf/recordedits.h"
#include "host/dxf/recordreader.h"
#include "host/dxf/atomicsave.h"
#include "host/dxf/savestate.h"
#include "host/dxf/savetables.h"
#include "host/dxf/schema/entities.h"
#include "host/dxf/schema/header.h"
#include "host/dxf/schema/objects.h"
#include "host/dxf/schema/tablerecords.h"
#include "host/text/foldcase.h"

namespace host::dxf
{
namespace
{
// Sets only what has changed, so a layer's other flags and its colour stay as the file has them.
void saveLayer(Edits& edits, const FileSource& source, const LoadedLayer& loaded)
{
    const AcDbLayerTableRecord& layer = *loaded.layer;
    const auto& table = schema::layer::table;
    const auto before = readRecord(table, TagSource{source.file, source.codePage}, *loaded.record,
                                   std::array{schema::symbolFlags, schema::layer::color});
    auto now = before;
    if (layer.isFrozen() != loaded.frozen || layer.isLocked() != loaded.locked)
    {
        now.flags &= ~(schema::layer::frozenFlag | schema::layer::lockedFlag);
        now.flags |= layer.isFrozen() ? schema::layer::frozenFlag : 0;
        now.flags |= layer.isLocked() ? schema::layer::lockedFlag : 0;
    }
    if (layer.isOff() != loaded.off)
    {
        now.color = int(-std::int64_t(before.color));  // of a damaged file it may be any int
    }
    const FileForm form{source.file.release(), source.codePage};
    saveChanges(edits, *loaded.record, RecordNumbers(table, before, form),
                RecordNumbers(table, now, form));
}

// Writes new entities. Those of the spaces go to ENTITIES, those of another block before its end.
std::size_t placeFor(const FileSource& source, const AcDbStub* owner)
{
    const std::wstring name = recordName(AcDbObjectId(const_cast<AcDbStub*>(owner)));
    if (name.empty() || name[0] == L'*')
    {
        const Section* entities = source.file.section(schema::section::entities);
        return entities != nullptr ? entities->end : source.file.eofOffset();
    }
    bool inBlock = false;
    for (const Record& record : source.file.records(schema::section::blocks))
    {
        const std::string_view type = source.file.typeName(record);
        if (type == schema::endOfBlock && inBlock)
        {
            return record.begin;
        }
        if (type == schema::block::table.type)
        {
            for (const Tag& tag : source.file.tags(record))
            {
                inBlock |= tag.code == schema::name &&
                           equalNoCase(source.codePage.decode(tag.value), name);
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
            edits.insert(place, [produce](TagWriter& writer)
                         { writeSection(writer, schema::section::entities, produce); });
            continue;
        }
        edits.insert(place, produce);
    }
}

FileForm formOf(const FileSource& source)
{
    return {source.file.release(), source.codePage};
}

void writeGroup(const DictionaryEntries::Entry& entry, std::uint64_t dictionary,
                const FileSource& source, TagWriter& writer)
{
    const GroupMembers& members = GroupMembers::of(*static_cast<AcDbGroup*>(entry.stub->object));
    schema::group::Group group;
    group.handle = entry.stub->handle();
    group.reactors = {dictionary};
    group.owner = dictionary;
    group.description = members.description;
    group.unnamed = members.anonymous ? 1 : 0;
    group.selectable = members.selectable ? 1 : 0;
    writeRecord(writer, schema::group::table, group, formOf(source));
    // Written one by one, so that a million handles are not held in memory once more.
    members.forEach(
        [&writer](const AcDbStub& member)
        {
            if (!member.erased())
            {
                writer.handle(schema::group::member, member.handle());
            }
        });
}

typedef std::vector<DictionaryEntries::Entry> NewGroups;

NewGroups newGroups(const DatabaseCore& core)
{
    NewGroups groups;
    const auto* dictionary =
        static_cast<AcDbDictionary*>(core.roots()[Root::groupDictionary]->object);
    for (const auto& entry : DictionaryEntries::of(*dictionary).inOrder())
    {
        if (!entry.loaded && !entry.stub->erased())
        {
            groups.push_back(entry);
        }
    }
    return groups;
}

void writeEntry(const std::wstring& key, std::uint64_t handle, const FileSource& source,
                TagWriter& writer)
{
    writeRecord(writer, schema::dictionary::entry, {key, handle}, formOf(source));
}

// `owner` is 0 for the root dictionary, because no object owns it.
void writeDictionary(const FileSource& source, std::uint64_t handle, std::uint64_t owner,
                     const Producer& entries, TagWriter& writer)
{
    schema::dictionary::Dictionary dictionary;
    dictionary.handle = handle;
    dictionary.owner = owner;
    if (owner != 0)
    {
        dictionary.reactors = {owner};
    }
    writeRecord(writer, schema::dictionary::table, dictionary, formOf(source));
    entries(writer);
}

// Writes new groups. Groups need the group dictionary, which needs the root dictionary; both are
// created if the file lacks them.
void saveGroups(Edits& edits, DatabaseCore& core)
{
    FileSource& source = sourceOf(core);
    const NewGroups groups = newGroups(core);
    if (groups.empty() || !source.file.release().objects)
    {
        return;
    }
    AcDbStub* dictionary = core.roots()[Root::groupDictionary];
    if (dictionary->handle() == 0)
    {
        core.objects().setHandle(dictionary, core.handles().take());
    }
    const std::uint64_t own = dictionary->handle();
    const Producer entries = [&source, groups](TagWriter& writer)
    {
        for (const auto& group : groups)
        {
            writeEntry(group.key, group.stub->handle(), source, writer);
        }
    };
    const std::uint64_t root =
        source.rootDictionary != nullptr ? source.rootDictionary->handle : core.handles().take();
    const bool isNew = source.groupDictionary == nullptr;
    const Producer objects = [&source, groups, own, root, isNew, entries](TagWriter& writer)
    {
        if (isNew)
        {
            writeDictionary(source, own, root, entries, writer);
        }
        for (const auto& group : groups)
        {
            writeGroup(group, own, source, writer);
        }
    };
    const Producer rootEntry = [&source, own](TagWriter& writer)
    { writeEntry(schema::dictionary::groups, own, source, writer); };
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
        edits.insert(source.file.section(schema::section::objects)->end, objects);
        return;
    }
    const Producer all = [&source, root, rootEntry, objects](TagWriter& writer)
    {
        writeDictionary(source, root, 0, rootEntry, writer);
        objects(writer);
    };
    const Section* section = source.file.section(schema::section::objects);
    if (section != nullptr)
    {
        edits.insert(section->end, all);
        return;
    }
    edits.insert(source.file.eofOffset(),
                 [all](TagWriter& writer) { writeSection(writer, schema::section::objects, all); });
}

// Raises the seed with the objects that are saved, so an unchanged drawing keeps its seed.
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
    const std::uint64_t seed = core.handles().next();
    HeaderEdits{edits, source.codePage}.setAll(schema::handleVariables,
                                               schema::HandleVariables{seed});
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
// Returns the approximate size of the new file in bytes.
std::size_t sizeAbout(const DatabaseCore& core, const Edits& edits)
{
    const std::size_t bytesOfLine = 160;
    return edits.file().bytes().size() + core.objects().size() * bytesOfLine;
}

void noteChanges(Edits& edits, DatabaseCore& core, const LiveStubs& live, EntityWriter& entities)
{
    const FileSource& source = sourceOf(core);
    saveTables(edits, core, live);
    saveRepairs(edits);
    for (const LoadedLayer& layer : source.layers)
    {
        saveLayer(edits, source, layer);
    }
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

// The seed of handles is left out, because cancelled work raises it, too.
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
