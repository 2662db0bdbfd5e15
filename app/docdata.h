// Records that are kept for each open drawing.
#pragma once

#include <map>

#include "hostapi/host.h"

// Nothing: the grid command leaves nothing behind but its settings file.
class CDocData
{
};

namespace netrax
{
// A record for each open document. The host gives the pointer of a closed document to a later one,
// so a record goes with its document.
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
        // Asked anew: a session that ends may have none left.
        AcApDocManager* manager = acDocManager;
        if (manager != nullptr)
        {
            manager->removeReactor(this);
        }
    }

    // The document's record, made when there is none. [borrowed] until the document is destroyed.
    Data& dataOf(AcApDocument* document) { return m_records[document]; }

    virtual void documentToBeDestroyed(AcApDocument* document) override
    {
        m_records.erase(document);
    }

private:
    std::map<AcApDocument*, Data> m_records;
};
}  // namespace netrax
