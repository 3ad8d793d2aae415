#ifndef BRASK_EXPORT_H
#define BRASK_EXPORT_H

// Marks what crosses the edge of a shared library.
//
//   BRASK_API   names of Lib_Brask, the controls
//   FENN_API    names of the drawing layer, Lib_Fenn or another one that keeps the same contract
//
// BRASK_STATIC and FENN_STATIC say that the side in question is linked in as an archive; the two
// _BUILD words are set only while the library itself is compiled. Off Windows the same objects make the
// archive and the shared library, so the names stay visible in both.

#ifdef _WIN32
#define BRASK_EXPORT_OUT __declspec(dllexport)
#define BRASK_EXPORT_IN __declspec(dllimport)
#define BRASK_EXPORT_STATIC
#else
#define BRASK_EXPORT_OUT __attribute__((visibility("default")))
#define BRASK_EXPORT_IN __attribute__((visibility("default")))
#define BRASK_EXPORT_STATIC __attribute__((visibility("default")))
#endif

#if defined(BRASK_STATIC)
#define BRASK_API BRASK_EXPORT_STATIC
#elif defined(BRASK_BUILD)
#define BRASK_API BRASK_EXPORT_OUT
#else
#define BRASK_API BRASK_EXPORT_IN
#endif

#if defined(FENN_STATIC)
#define FENN_API BRASK_EXPORT_STATIC
#elif defined(FENN_BUILD)
#define FENN_API BRASK_EXPORT_OUT
#else
#define FENN_API BRASK_EXPORT_IN
#endif

#endif
