/// The export macro of the library, and nothing else.
///
/// STAADKIT_STATIC is defined by the static target, STAADKIT_BUILDING while the library itself is
/// compiled; both come from the build, hosts set neither by hand.
#ifndef STAAD_EXPORT_H
#define STAAD_EXPORT_H

#if defined(STAADKIT_STATIC)
#    define STAAD_API
#elif defined(_WIN32) && defined(STAADKIT_BUILDING)
#    define STAAD_API __declspec(dllexport)
#elif defined(_WIN32)
#    define STAAD_API __declspec(dllimport)
#else
#    define STAAD_API __attribute__((visibility("default")))
#endif

#endif
