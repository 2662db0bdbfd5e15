// The C runtime's wide calls as a module made for Windows knows them.
//
// Streams of _wfopen are read and written with fgetwc and fwprintf, and closed with fclose.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <cwchar>

extern "C"
{
    // Opens a file for text ("r", "w", "a") or as it is ("rb", "wb", "ab"); backslashes separate
    // folders. Text reading makes CR LF one LF and ends at Ctrl-Z, text writing makes LF CR LF.
    //
    // "r, ccs=UTF-8", "r, ccs=UTF-16LE" and "r, ccs=UNICODE" decode: a byte-order mark decides,
    // without one UTF-8 for the first and UTF-16LE for the others; each byte that is no UTF-8
    // becomes U+FFFD. Null with errno for a file that cannot be opened or begins with a UTF-16BE
    // mark (EINVAL), and for any other mode (EINVAL).
    FILE* _wfopen(const wchar_t* path, const wchar_t* mode);

    // [blanks and tabs] [sign] [digits] [.digits] [d|D|e|E [sign] digits], up to the first
    // character that does not go on; the point is a point in every locale. No number gives 0, one
    // out of range
    // +-HUGE_VAL.
    double _wtof(const wchar_t* text);
    // [white space] [sign] [digits]; the nearest int for a number out of range.
    int _wtoi(const wchar_t* text);

    // Compare unit by unit, A-Z as a-z and nothing else folded: `_` stands before the letters, and
    // Cyrillic capitals differ from small letters.
    int _wcsicmp(const wchar_t* left, const wchar_t* right);
    int _wcsnicmp(const wchar_t* left, const wchar_t* right, std::size_t count);

    wint_t crtFgetwc(FILE* stream);
    int crtFwprintf(FILE* stream, const wchar_t* format, ...);
    int crtWctomb(char* bytes, wchar_t unit);
}

// These names belong to this platform's C library too, with other rules: %s takes a narrow text
// there, a wide call fails on the first character outside the locale, and lines end in LF. So the
// module's calls are led to our functions by name, and only the calls: the streams stay the C
// library's own, which is why fclose needs no such step. Macros stand above the C library's inline
// forms of these functions, and a use that they miss does not compile (std::fwprintf). They come
// after the standard headers, which take macros of these names away.
#define fgetwc(stream) crtFgetwc(stream)
#define fwprintf(...) crtFwprintf(__VA_ARGS__)
#define wctomb(bytes, unit) crtWctomb(bytes, unit)
