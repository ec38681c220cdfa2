#pragma once

#include <pthread.h>

#include <atomic>
#include <cstddef>

#include "channel/event.h"

// Sleeps that long; a signal does not cut the sleep short.
void MilliSecondSleep(unsigned milliseconds);

// A detached thread with a life cycle that cleans up after itself.
//
// An owned thread is shared by its owner and the thread: the object stays valid until the owner calls Abandon, however
// early the function ends, and is freed by the thread, never by the owner. An owner that never abandons keeps the
// thread polling once a millisecond for ever. The two meet only through two flags. A fire-and-forget thread has no
// owner and frees everything as soon as its function returns.
//
// What a thread's function throws is swallowed. At its end the thread runs what AtThreadExit registered.
class PortableThread {
  public:
    using Function = void (*)(void*);

    // The least stack of every thread, in bytes: a smaller default of the platform is raised to it, a larger one kept.
    static constexpr std::size_t kMinimumStackSize = 0x80000;

    // An owned thread that waits for Start; null when the function is null. Until Start has succeeded the caller may
    // delete it.
    static PortableThread* CreatePortableThreadSuspended(Function function, void* argument);
    // The same, started at once; null also when it could not be started.
    static PortableThread* CreatePortableThread(Function function, void* argument);
    // A fire-and-forget thread. Answers whether it started.
    static bool RunPortableThread(Function function, void* argument);

    // Starts the thread and answers whether it runs; a call after the first does nothing and answers true. A failure
    // goes to standard error as one line and leaves an object that can only be deleted. Must have returned before Abandon
    // is called.
    bool Start();

    // The owner's last call: from now on the object may vanish at any moment.
    void Abandon() { abandoned_ = true; }

    // Called by the thread when its function has returned.
    void Complete() { completed_ = true; }
    bool Completed() const { return completed_; }

    // The platform's thread; only after Start has succeeded, and only of an owned thread.
    pthread_t Handle() const { return handle_; }

    // What the entry procedures are given; they free it.
    struct StartBlock {
        Function function;
        void* argument;
        PortableThread* thread;
    };
    // The entry of an owned thread: runs the function, waits for the owner to abandon the object, frees it. A block
    // without a thread object is freed and nothing runs.
    static void* WaitForAbandon(void* start_block);
    // The entry of a fire-and-forget thread: runs the function and frees the object.
    static void* WaitForCompletion(void* start_block);

  private:
    PortableThread(Function function, void* argument, bool run_to_completion)
        : function_(function), argument_(argument), run_to_completion_(run_to_completion) {}

    std::atomic<bool> abandoned_ = false;
    std::atomic<bool> completed_ = false;
    Function function_;
    void* argument_;
    bool not_started_ = true;
    bool run_to_completion_;
    pthread_t handle_{};
};

// Registers a routine that every PortableThread runs once at its end, after those registered before it.
//
// There is no lock: register during start-up, before the first thread runs. Threads may end while the process exits, so
// the registry is never torn down.
void AtThreadExit(void (*routine)());

// Runs the registered routines on the calling thread.
void DoThreadExitRoutines();

// The process-wide wish that service threads end. The pipe loops look at the flag on every pass; nothing in this
// process sets it.
//
// Threads may look while the process exits, so neither member is ever destroyed.
class ThreadKiller {
  public:
    static std::atomic<bool> m_kill;
    static UnixPlatform::Event& m_Event;
};
