// The application object of the module.
#pragma once

#include "app/rxapp.h"

class CGridApp : public netrax::AcRxArxApp
{
public:
    virtual void registerComponents() override {}
};

// The one there is; made when the module is loaded.
CGridApp& gridApp();
