#pragma once

// The system's headers and the automation interface; the one place that includes windows.h. To be
// included before any header of the core.

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <ole2.h>
#include <olectl.h>
#include <windows.h>

// A member of pages and templates, which would be called DrawTextA in some files and not in others.
#undef DrawText

#include "folivar_h.h"
