// The services that the host application offers to the database.
#pragma once

#include "dbmain.h"

// The services of the application. The host has one object of this class.
class AcDbHostApplicationServices
{
public:
    // Returns the drawing that calls without a drawing argument act on [borrowed]; in this host it
    // is the drawing of the open document. Returns null while no drawing is open.
    AcDbDatabase* workingDatabase() const { return m_working; }
    // Sets the working database [borrowed]; null leaves none. Only the host calls this function.
    void setWorkingDatabase(AcDbDatabase* database) { m_working = database; }

private:
    AcDbDatabase* m_working = nullptr;
};

// Returns the one object of that class [borrowed]. It exists before any module is loaded.
AcDbHostApplicationServices* acdbHostApplicationServices();
