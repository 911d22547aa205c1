// SPDX-License-Identifier: MIT
#pragma once

#include <pthread.h>

#include <mutex>

namespace tessera {

/// A mutex whose waiters try again for a moment before they sleep, for sections that are over
/// sooner than a thread is put to sleep and woken. See pthread_mutexattr_settype(3); where the C
/// library has no such mutex it is a plain one.
class AdaptiveMutex final : public std::mutex {
public:
    AdaptiveMutex()
    {
#ifdef __GLIBC__
        ::pthread_mutexattr_t attributes;
        ::pthread_mutexattr_init(&attributes);
        ::pthread_mutexattr_settype(&attributes, PTHREAD_MUTEX_ADAPTIVE_NP);
        ::pthread_mutex_destroy(native_handle());
        ::pthread_mutex_init(native_handle(), &attributes);
        ::pthread_mutexattr_destroy(&attributes);
#endif
    }
};

} // namespace tessera
