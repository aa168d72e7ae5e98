#pragma once

// The automation interface in a namespace of its own: its header names classes as the library does.

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
//
#include <ole2.h>
#include <wrl/client.h>

#undef DrawText
#undef __CRT_UUID_DECL
#define __CRT_UUID_DECL(type, ...)

namespace automation {

#include "folivar_h.h"

}  // namespace automation
