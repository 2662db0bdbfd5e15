// Calls of the editor and of the C runtime that can fail.
#include <cstdarg>
#include <string>

#include "aced.h"
#include "acedads.h"
#include "acutads.h"
#include "crt.h"
#include "gemat3d.h"
#include "host/windows/format.h"
#include "rxmfcapi.h"
#include "rxregsvc.h"
#include "tests/faults/callthatfails.h"

// The editor. The module repeats a refused prompt without a limit, so a prompt fails only once. A
// prompt is refused without its options as well.

CALL_THAT_FAILS(int, failInitGet, "_Z11acedInitGetiPKw", "acedInitGet",
                (int bits, const ACHAR* keywords), (bits, keywords), NOTHING, 1, RTERROR)
CALL_THAT_FAILS(int, failGetPoint, "_Z12acedGetPointPKdPKwPd", "acedGetPoint",
                (const ads_point base, const ACHAR* prompt, ads_point result),
                (base, prompt, result), NOTHING, 2, RTERROR, RTCAN, RTNONE, RTREJ)
CALL_THAT_FAILS(int, failGetCorner, "_Z13acedGetCornerPKdPKwPd", "acedGetCorner",
                (const ads_point base, const ACHAR* prompt, ads_point result),
                (base, prompt, result), NOTHING, 2, RTERROR, RTCAN, RTNONE, RTREJ)
CALL_THAT_FAILS(int, failGetDist, "_Z11acedGetDistPKdPKwPd", "acedGetDist",
                (const ads_point base, const ACHAR* prompt, ads_real* result),
                (base, prompt, result), NOTHING, 0, RTERROR, RTCAN, RTNONE, RTREJ)
CALL_THAT_FAILS(int, failGetKword, "_Z12acedGetKwordPKwPw", "acedGetKword",
                (const ACHAR* prompt, ACHAR* result), (prompt, result), NOTHING, 1, RTCAN, RTNONE,
                RTERROR)
CALL_THAT_FAILS(int, failGetInput, "_Z12acedGetInputPw", "acedGetInput", (ACHAR * text), (text),
                NOTHING, 0, RTERROR)
CALL_THAT_FAILS(int, failGetVar, "_Z10acedGetVarPKwP6resbuf", "acedGetVar",
                (const ACHAR* name, resbuf* result), (name, result), NOTHING, 0, RTERROR)
CALL_THAT_FAILS(int, failSetVar, "_Z10acedSetVarPKwPK6resbuf", "acedSetVar",
                (const ACHAR* name, const resbuf* value), (name, value), NOTHING, 0, RTERROR)
CALL_THAT_FAILS(bool, failToUcs, "_Z11acdbWcs2UcsPdS_b", "acdbWcs2Ucs",
                (ads_point from, ads_point to, bool vector), (from, to, vector), NOTHING, 0, false)
CALL_THAT_FAILS(bool, failToWcs, "_Z11acdbUcs2WcsPdS_b", "acdbUcs2Wcs",
                (ads_point from, ads_point to, bool vector), (from, to, vector), NOTHING, 0, false)
STATUS_CALL(failGetUcs, "_Z17acedGetCurrentUCSR12AcGeMatrix3d", "acedGetCurrentUCS",
            (AcGeMatrix3d & matrix), (matrix), NOTHING, Acad::eNoDatabase)
STATUS_CALL(failSetUcs, "_Z17acedSetCurrentUCSRK12AcGeMatrix3d", "acedSetCurrentUCS",
            (const AcGeMatrix3d& matrix), (matrix), NOTHING, Acad::eInvalidInput, Acad::eNoDatabase)
CALL_THAT_FAILS(bool, failPreviousUcs, "_Z22acedRestorePreviousUCSv", "acedRestorePreviousUCS", (),
                (), NOTHING, 0, false)
CALL_THAT_FAILS(int, failMeter, "_Z29acedSetStatusBarProgressMeterPKwii",
                "acedSetStatusBarProgressMeter", (const ACHAR* label, int least, int most),
                (label, least, most), NOTHING, 0, -1)
CALL_THAT_FAILS(int, failMeterPosition, "_Z32acedSetStatusBarProgressMeterPosi",
                "acedSetStatusBarProgressMeterPos", (int position), (position), NOTHING, 0, -1)
CALL_THAT_FAILS(int, failAlert, "_Z9acedAlertPKw", "acedAlert", (const ACHAR* text), (text),
                NOTHING, 0, RTERROR)

// A printing call takes any number of arguments; the formatted result is passed on as one text.
#define PRINTING_CALL(NAME, SYMBOL, TITLE, FAILURE, PARAMETERS, ARGUMENTS)                 \
    extern "C" __attribute__((visibility("default"))) int NAME PARAMETERS __asm__(SYMBOL); \
    extern "C" int NAME PARAMETERS                                                         \
    {                                                                                      \
        static auto* const next = original<int PARAMETERS>(SYMBOL);                        \
        if (outcomeOf(TITLE, 1, 0, CALLER) >= 0)                                           \
        {                                                                                  \
            return FAILURE;                                                                \
        }                                                                                  \
        std::va_list arguments;                                                            \
        va_start(arguments, format);                                                       \
        const std::wstring text = host::formatWide(format, arguments);                     \
        va_end(arguments);                                                                 \
        return next ARGUMENTS;                                                             \
    }                                                                                      \
    [[maybe_unused]] const bool NAME##IsListed =                                           \
        faults::list(TITLE, SYMBOL, reinterpret_cast<void*>(NAME));

PRINTING_CALL(failPrint, "_Z10acutPrintfPKwz", "acutPrintf", RTERROR, (const ACHAR* format, ...),
              (L"%s", text.c_str()))
PRINTING_CALL(failWrite, "crtFwprintf", "fwprintf", -1, (FILE * file, const wchar_t* format, ...),
              (file, L"%s", text.c_str()))
CALL_THAT_FAILS(FILE*, failOpenFile, "_wfopen", "_wfopen",
                (const wchar_t* path, const wchar_t* mode), (path, mode), NOTHING, 0, nullptr)
CALL_THAT_FAILS(wint_t, failReadChar, "crtFgetwc", "fgetwc", (FILE * stream), (stream), NOTHING, 0,
                WEOF)
CALL_THAT_FAILS(int, failNarrow, "crtWctomb", "wctomb", (char* bytes, wchar_t unit), (bytes, unit),
                NOTHING, 0, -1)
// The file is closed, but its last lines were not written.
CALL_THAT_FAILS(int, failCloseFile, "fclose", "fclose", (FILE * file), (file), next(file), 0, EOF)
