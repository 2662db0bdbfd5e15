// The texts and the calls of a Unicode build.
#pragma once

#define _T(text) L##text
#define _TEXT(text) L##text

#include "crt.h"
