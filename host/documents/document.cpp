#include "host/documents/document.h"

#include <utility>

#include "host/windows/text.h"

ACRX_DEFINE_MEMBERS(AcApDocument, AcRxObject)

namespace host
{
Document::Document(std::unique_ptr<AcDbDatabase> database, std::filesystem::path path)
    : m_database(std::move(database)), m_commands(*m_database, m_ucsHistory)
{
    setPath(std::move(path));
}

void Document::setPath(std::filesystem::path path)
{
    m_path = path.empty() ? path : std::filesystem::absolute(path).lexically_normal();
    m_fileName = fromUtf8(m_path.string());
}
}  // namespace host
