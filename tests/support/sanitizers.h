/// What the tests are built with, where it matters to them.
#ifndef STAAD_TESTS_SUPPORT_SANITIZERS_H
#define STAAD_TESTS_SUPPORT_SANITIZERS_H

/// Under it, everything takes several times as long.
#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool has_address_sanitizer = true;
#elif defined(__has_feature)
inline constexpr bool has_address_sanitizer = __has_feature(address_sanitizer);
#else
inline constexpr bool has_address_sanitizer = false;
#endif

#endif
