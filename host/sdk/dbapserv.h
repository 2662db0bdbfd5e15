// What the host application offers to the database.
#pragma once

#include "dbmain.h"

class AcDbHostApplicationServices
{
public:
    AcDbDatabase* workingDatabase() const { return m_working; }  // null without a drawing
    void setWorkingDatabase(AcDbDatabase* database) { m_working = database; }

private:
    AcDbDatabase* m_working = nullptr;
};

AcDbHostApplicationServices* acdbHostApplicationServices();
