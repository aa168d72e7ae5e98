#pragma once

// Before anything else, which would say it in many more words.
#if __cplusplus <= 201703L && (!defined(_MSVC_LANG) || _MSVC_LANG <= 201703L)
#define FOLIVAR_NEEDS_A_NEWER_STANDARD
#error "Folivar is for C++20: compile with -std=c++20, or /std:c++20"
#endif

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
