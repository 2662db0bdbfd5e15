#include "host/dxf/recordedits.h"

namespace host::dxf
{
namespace
{
std::string textOf(const RecordNumbers::Number& number)
{
    const auto* integer = std::get_if<std::int64_t>(&number);
    return integer != nullptr ? std::to_string(*integer) : realText(std::get<double>(number));
}

void write(Code code, const RecordNumbers::Number& number, TagWriter& writer)
{
    if (const auto* integer = std::get_if<std::int64_t>(&number))
    {
        writer.integer(code, *integer);
        return;
    }
    writer.real(code, std::get<double>(number));
}

std::map<Code, RecordNumbers::Number> changed(const RecordNumbers& before, const RecordNumbers& now)
{
    std::map<Code, RecordNumbers::Number> changes;
    for (const auto& [code, number] : now.all())
    {
        const auto found = before.all().find(code);
        if (found == before.all().end() || found->second != number)
        {
            changes[code] = number;
        }
    }
    return changes;
}
}  // namespace

void RecordNumbers::point(Code code, double x, double y)
{
    real(code, x);
    real(code.y(), y);
}

void RecordNumbers::point(Code code, double x, double y, double z)
{
    point(code, x, y);
    real(code.z(), z);
}

void saveChanges(Edits& edits, const Record& record, const RecordNumbers& before,
                 const RecordNumbers& now)
{
    auto changes = changed(before, now);
    for (const Tag& tag : ownTags(edits.file(), record))
    {
        const auto found = changes.find(tag.code);
        if (found != changes.end())
        {
            edits.setValue(tag, textOf(found->second));
            changes.erase(found);
        }
    }
    for (const auto& [code, number] : changes)
    {
        edits.insert(endOfOwnTags(edits.file(), record),
                     [code = code, number = number](TagWriter& writer)
                     { write(code, number, writer); });
    }
}
}  // namespace host::dxf
