#include "channel/portable_thread.h"

#include <chrono>
#include <cstdio>
#include <memory>
#include <thread>
#include <vector>

#include "foundation/base/never_destroyed.h"

namespace {

using StartBlock = PortableThread::StartBlock;
using Routines = std::vector<void (*)()>;

Routines& ExitRoutines() {
    static Routines& routines = NeverDestroyed<Routines>();
    return routines;
}

bool Succeeded(int error, char const* call) {
    if (error == 0) return true;
    std::fprintf(stderr, "Unable to %s (%d)\n", call, error);
    return false;
}

bool RaiseStackSize(pthread_attr_t& attributes) {
    std::size_t size = 0;
    if (!Succeeded(pthread_attr_getstacksize(&attributes, &size), "pthread_attr_getstacksize")) return false;
    if (size >= PortableThread::kMinimumStackSize) return true;
    return Succeeded(pthread_attr_setstacksize(&attributes, PortableThread::kMinimumStackSize),
                     "pthread_attr_setstacksize");
}

// Hands the block to the thread, or frees it when there will be none.
bool CreateDetached(pthread_attr_t& attributes, void* (*entry)(void*), std::unique_ptr<StartBlock> block,
                    pthread_t& handle) {
    if (!Succeeded(pthread_attr_setdetachstate(&attributes, PTHREAD_CREATE_DETACHED), "pthread_attr_setdetachstate") ||
        !RaiseStackSize(attributes) ||
        !Succeeded(pthread_create(&handle, &attributes, entry, block.get()), "pthread_create"))
        return false;
    block.release();
    return true;
}

// No exception leaves a thread: there is nobody above it.
template <class Procedure>
void Swallowing(Procedure procedure) {
    try {
        procedure();
    } catch (...) {
    }
}

}  // namespace

void MilliSecondSleep(unsigned milliseconds) {
    using namespace std::chrono;
    if (milliseconds >= 1000) std::this_thread::sleep_for(seconds(milliseconds / 1000));
    std::this_thread::sleep_for(microseconds(milliseconds % 1000 * 1000));
}

PortableThread* PortableThread::CreatePortableThreadSuspended(Function function, void* argument) {
    return function ? new PortableThread(function, argument, false) : nullptr;
}

PortableThread* PortableThread::CreatePortableThread(Function function, void* argument) {
    std::unique_ptr<PortableThread> thread(CreatePortableThreadSuspended(function, argument));
    return thread && thread->Start() ? thread.release() : nullptr;
}

bool PortableThread::RunPortableThread(Function function, void* argument) {
    if (!function) return false;
    std::unique_ptr<PortableThread> thread(new PortableThread(function, argument, true));
    bool const started = thread->Start();
    if (started) thread.release();
    return started;
}

bool PortableThread::Start() {
    if (!not_started_) return true;
    not_started_ = false;
    auto block = std::make_unique<StartBlock>(StartBlock{function_, argument_, this});
    pthread_attr_t attributes;
    if (!Succeeded(pthread_attr_init(&attributes), "pthread_attr_init")) return false;
    // A fire-and-forget thread may have freed this object before pthread_create returns: what is needed afterwards is
    // read before, and its handle is not kept.
    bool const owned = !run_to_completion_;
    pthread_t handle{};
    bool const started =
        CreateDetached(attributes, owned ? WaitForAbandon : WaitForCompletion, std::move(block), handle);
    pthread_attr_destroy(&attributes);
    if (started && owned) handle_ = handle;
    return started;
}

void* PortableThread::WaitForAbandon(void* start_block) {
    std::unique_ptr<StartBlock> block(static_cast<StartBlock*>(start_block));
    if (!block->thread) return nullptr;
    Swallowing([&] { block->function(block->argument); });
    std::unique_ptr<PortableThread> thread(block->thread);
    thread->Complete();
    while (!thread->abandoned_) MilliSecondSleep(1);
    thread.reset();
    block.reset();
    Swallowing(DoThreadExitRoutines);
    return nullptr;
}

void* PortableThread::WaitForCompletion(void* start_block) {
    std::unique_ptr<StartBlock> block(static_cast<StartBlock*>(start_block));
    Swallowing([&] { block->function(block->argument); });
    delete block->thread;
    block.reset();
    Swallowing(DoThreadExitRoutines);
    return nullptr;
}

void AtThreadExit(void (*routine)()) {
    ExitRoutines().push_back(routine);
}

void DoThreadExitRoutines() {
    for (auto routine : ExitRoutines()) routine();
}

std::atomic<bool> ThreadKiller::m_kill = false;
UnixPlatform::Event& ThreadKiller::m_Event = NeverDestroyed<UnixPlatform::Event>();
