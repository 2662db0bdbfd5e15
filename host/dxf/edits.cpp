#include "host/dxf/edits.h"

#include <algorithm>
#include <stdexcept>

#include "host/dxf/schema/structure.h"

namespace host::dxf
{
void writeSection(TagWriter& writer, std::string_view name, const Producer& contents)
{
    writer.text(schema::recordType, schema::sectionStart);
    writer.text(schema::name, name);
    contents(writer);
    writer.text(schema::recordType, schema::sectionEnd);
}

void Edits::replace(std::size_t begin, std::size_t end, Producer produce)
{
    m_edits.push_back({begin, end, std::move(produce)});
}

void Edits::setValue(const Tag& tag, std::string_view encoded)
{
    if (trimmed(tag.value) == trimmed(encoded))
    {
        return;
    }
    const std::size_t begin = tag.value.data() - m_file.bytes().data();
    replace(begin, begin + tag.value.size(),
            [text = std::string(encoded)](TagWriter& writer) { writer.raw(text); });
}

void Edits::setHeader(std::string_view name, const Producer& produce)
{
    std::string tags;
    TagWriter writer([&tags](std::string_view bytes) { tags += bytes; }, m_file.style());
    const HeaderVariable* variable = m_file.header(name);
    if (!variable)
    {
        writer.text(schema::variableName, name);
    }
    produce(writer);
    writer.flush();

    const Section* header = m_file.section(schema::section::header);
    if (!header)
    {
        m_newHeader += tags;
        return;
    }
    const std::size_t begin = variable ? variable->begin : header->end;
    const std::size_t end = variable ? variable->end : header->end;
    if (m_file.bytes().substr(begin, end - begin) != tags)
    {
        replace(begin, end, [tags](TagWriter& out) { out.raw(tags); });
    }
}

void Edits::writeNewHeader(TagWriter& writer) const
{
    writeSection(writer, schema::section::header, [this](TagWriter& out) { out.raw(m_newHeader); });
}

void Edits::write(TagWriter& writer) const
{
    std::vector<const Edit*> inOrder;
    const std::size_t first = m_file.firstTag();
    const Edit header{first, first, [this](TagWriter& out) { writeNewHeader(out); }};
    if (!m_newHeader.empty())
    {
        inOrder.push_back(&header);
    }
    for (const Edit& edit : m_edits)
    {
        inOrder.push_back(&edit);
    }
    // An insertion comes before a replacement that begins at the same place.
    std::ranges::stable_sort(inOrder, {},
                             [](const Edit* e) { return std::pair(e->begin, e->end); });

    std::size_t done = 0;
    for (const Edit* edit : inOrder)
    {
        if (edit->begin < done)
        {
            throw std::logic_error("changes of a drawing file overlap");
        }
        writer.raw(m_file.bytes().substr(done, edit->begin - done));
        if (edit->produce)
        {
            edit->produce(writer);
        }
        done = edit->end;
    }
    writer.raw(m_file.bytes().substr(done));
}

void Edits::writeChanges(TagWriter& writer) const
{
    writer.raw(m_newHeader);
    for (const Edit& edit : m_edits)
    {
        writer.raw(std::to_string(edit.begin) + '-' + std::to_string(edit.end) + '\n');
        if (edit.produce)
        {
            edit.produce(writer);
        }
    }
}
}  // namespace host::dxf
