#pragma once

// The compiler's win32 thread model has no std::mutex and std::condition_variable. GoogleTest needs both, for
// a class that these tests don't use. It is compiled with this header in front.
#include <atomic>
#include <condition_variable>
#include <mutex>
#if !defined(_GLIBCXX_HAS_GTHREADS)

namespace std {

class mutex {
public:
    void lock() {
        while (locked_.test_and_set()) {
        }
    }
    void unlock() { locked_.clear(); }

private:
    atomic_flag locked_;
};

class condition_variable {
public:
    void notify_all() {}
    template <class Lock, class Condition>
    void wait(Lock& lock, Condition condition) {
        while (!condition()) {
            lock.unlock();
            lock.lock();
        }
    }
};

} // namespace std
#endif
