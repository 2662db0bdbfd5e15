// The application object of the module.
#pragma once

#include "app/rxapp.h"

// The application of this module. The tables in app/tables.h list what it registers.
class CGridApp : public netrax::AcRxArxApp
{
public:
    virtual void registerComponents() override {}
};

// Returns the only application object [borrowed]. It exists as long as the module is loaded.
CGridApp& gridApp();
