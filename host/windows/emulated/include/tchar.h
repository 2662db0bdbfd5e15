// Texts of a Unicode build, and the calls that a Unicode build makes.
#pragma once

#define _T(text) L##text
#define _TEXT(text) L##text

#include "crt.h"
