#include "app/gridapp.h"

namespace
{
CGridApp application;
}  // namespace

CGridApp& gridApp()
{
    return application;
}
