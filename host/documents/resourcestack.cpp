#include "host/documents/resourcestack.h"

#include "afxwin.h"
#include "host/basics/breach.h"

namespace host
{
void ResourceStack::push(HINSTANCE resources)
{
    m_former.push_back(AfxGetResourceHandle());
    AfxSetResourceHandle(resources);
}

void ResourceStack::pop()
{
    if (m_former.empty())
    {
        breach("popResourceHandle", "no resource handle was pushed");
    }
    AfxSetResourceHandle(m_former.back());
    m_former.pop_back();
}
}  // namespace host
