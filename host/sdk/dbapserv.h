// What the host application offers to the database.
#pragma once

#include "dbmain.h"

// What the application tells its drawings. There is one object of it.
class AcDbHostApplicationServices
{
public:
    // The drawing that calls without a drawing of their own act on, here that of the open document
    // [borrowed]; null while no drawing is open.
    AcDbDatabase* workingDatabase() const { return m_working; }
    // The host calls it; null takes the working database away [borrowed].
    void setWorkingDatabase(AcDbDatabase* database) { m_working = database; }

private:
    AcDbDatabase* m_working = nullptr;
};

// The one object of that class [borrowed]; it is there before any module is loaded.
AcDbHostApplicationServices* acdbHostApplicationServices();
