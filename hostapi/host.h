// The host's interface in one include. The module includes no other header of the host except
// afxdllx.h. That header defines MFC's own entry point, so only one source may include it:
// app/entry.cpp.
//
// The headers are listed one by one, because the host's umbrella header brings in many more names
// than the module uses. MFC comes first and complete, because the host's dialogs derive from
// classes all over MFC. Every later header follows those that its declarations need, because some
// of them do not include what they need.
#pragma once

#include "afxwin.h"
#include "afxext.h"
#include "afxcmn.h"
#include "afxdlgs.h"
#include "afxole.h"
#include "afxdisp.h"
#include "windows.h"
#include "shlwapi.h"

#include "adesk.h"
#include "acadstrc.h"
#include "rxdefs.h"
#include "rxobject.h"
#include "rxclass.h"
#include "rxdict.h"
#include "rxregsvc.h"
#include "rxsrvice.h"
#include "rxdlinkr.h"

#include "acarray.h"
#include "getol.h"
#include "gegbl.h"
#include "gepnt3d.h"
#include "gevec3d.h"
#include "gemat3d.h"
#include "gepnt3da.h"
#include "geplane.h"
#include "gelnsg3d.h"

#include "acdb.h"
#include "dbid.h"
#include "dbidar.h"
#include "dbmain.h"
#include "dbapserv.h"
#include "dbsymtb.h"
#include "dbdict.h"
#include "dbgroup.h"
#include "dbcurve.h"
#include "dbents.h"
#include "dbobjptr.h"
#include "dbMPolygon.h"

#include "adsdef.h"
#include "adscodes.h"
#include "geassign.h"
#include "acutmem.h"
#include "acutads.h"
#include "acedads.h"
#include "adslib.h"
#include "dbxutil.h"
#include "accmd.h"
#include "aced.h"
#include "acdocman.h"
#include "axlock.h"

#include "rxmfcapi.h"
#include "acui.h"
