#pragma once

// Where warnings go, for programs that load Folivar.dll themselves. Plain C.

#include <windows.h>

#ifdef __cplusplus
extern "C" {
#endif

// Gets the text of a warning and the context given with the callback, on the thread of the call
// that warns. Must not throw.
// NOLINTNEXTLINE(modernize-use-using)
typedef void(CALLBACK* FolivarWarningCallback)(const wchar_t* text, void* context);

// From now on every warning of this process goes to the callback, and nowhere else; null goes back
// to what the environment variable FOLIVAR_WARNINGS says.
void STDAPICALLTYPE FolivarSetWarningCallback(FolivarWarningCallback callback, void* context);

#ifdef __cplusplus
}
#endif
