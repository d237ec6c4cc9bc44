#pragma once

#if defined(__SANITIZE_THREAD__)
#define TESSARIN_HAS_RACE_DETECTOR 1
#elif defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define TESSARIN_HAS_RACE_DETECTOR 1
#endif
#endif

#if defined(TESSARIN_HAS_RACE_DETECTOR)
#include <sanitizer/tsan_interface.h>
#endif

/// What Qt's own locks do, in words for the thread sanitizer: Qt is not compiled with it, so it
/// can't see them. All that a thread did before release() is known to a thread after acquire() of
/// the same address. In any other build both are nothing.
namespace RaceDetector
{

inline void release([[maybe_unused]] const void* address)
{
#if defined(TESSARIN_HAS_RACE_DETECTOR)
    __tsan_release(const_cast<void*>(address));
#endif
}

inline void acquire([[maybe_unused]] const void* address)
{
#if defined(TESSARIN_HAS_RACE_DETECTOR)
    __tsan_acquire(const_cast<void*>(address));
#endif
}

} // namespace RaceDetector
