// Records that are kept for each open drawing.
#pragma once

#include <map>

#include "hostapi/host.h"

// The record of one document. It is empty, because the grid command keeps nothing between two runs
// except its settings file.
class CDocData
{
};

namespace netrax
{
// Keeps a record for each open document. The host may give the address of a closed document to a
// later one, so a record is removed together with its document.
template <class Data>
class AcApDataManager : public AcApDocManagerReactor
{
public:
    AcApDataManager()
    {
        AcApDocManager* manager = acDocManager;
        if (manager != nullptr)
        {
            manager->addReactor(this);
        }
    }

    ~AcApDataManager()
    {
        // The destructor asks for the manager again, because a session that ends may already have
        // destroyed it.
        AcApDocManager* manager = acDocManager;
        if (manager != nullptr)
        {
            manager->removeReactor(this);
        }
    }

    // Returns the document's record and creates an empty one at the first call. The record is
    // [borrowed] until the document is destroyed.
    Data& dataOf(AcApDocument* document) { return m_records[document]; }

    // Removes the document's record; the host calls it.
    virtual void documentToBeDestroyed(AcApDocument* document) override
    {
        m_records.erase(document);
    }

private:
    std::map<AcApDocument*, Data> m_records;
};
}  // namespace netrax
