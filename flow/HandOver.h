#pragma once

#include <atomic>

/// Carried by a task behind all it holds, this shows the thread sanitizer what the toolkit's locks
/// already see to: what one thread wrote before it handed the task over, the other may read. (The
/// toolkit is not instrumented, so its own locks are invisible.) It costs two counts for a filter.
class HandOver
{
public:
    HandOver() = default;
    HandOver(const HandOver&) { give(); }
    HandOver& operator=(const HandOver&) = delete;

    static void give() { s_count.fetch_add(1, std::memory_order_release); }
    static void take() { static_cast<void>(s_count.load(std::memory_order_acquire)); }

private:
    inline static std::atomic<unsigned> s_count{0};
};
