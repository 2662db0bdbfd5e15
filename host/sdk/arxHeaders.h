// What every module includes.
#pragma once

#include "acadapp.h"
#include "acadstrc.h"
#include "adesk.h"
#include "rxdefs.h"
#include "rxdict.h"
#include "rxdlinkr.h"
#include "rxobject.h"
#include "rxregsvc.h"
#include "rxsrvice.h"

#include "accmd.h"
#include "acdocman.h"
#include "aced.h"
#include "acutmem.h"
#include "adslib.h"
