#pragma once

// FOLIVAR_API marks the classes that a shared library exports; everything else stays hidden.
#if defined(_WIN32) && defined(FOLIVAR_SHARED)
#if defined(FOLIVAR_BUILDING)
#define FOLIVAR_API __declspec(dllexport)
#else
#define FOLIVAR_API __declspec(dllimport)
#endif
#elif defined(__GNUC__)
#define FOLIVAR_API __attribute__((visibility("default")))
#else
#define FOLIVAR_API
#endif
