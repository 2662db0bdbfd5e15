// Texts of a Unicode build.
#pragma once

#define _T(text) L##text
#define _TEXT(text) L##text
