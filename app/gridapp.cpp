#include "app/gridapp.h"

namespace
{
CGridApp theApp;
}  // namespace

CGridApp& gridApp()
{
    return theApp;
}
