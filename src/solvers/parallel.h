// Independent jobs on several threads; what comes out does not depend on how many.
#pragma once

#include <atomic>
#include <exception>
#include <thread>
#include <vector>

/// Runs job(0) to job(count - 1) on up to `threads` threads. The first exception by job number is rethrown
/// after all have ended.
template <class Job>
void parallelFor(int count, int threads, Job job) {
    std::vector<std::exception_ptr> faults(static_cast<std::size_t>(count));
    std::atomic<int> next = 0;
    const auto work = [&] {
        for (int i = next++; i < count; i = next++) {
            try {
                job(i);
            } catch (...) {
                faults[static_cast<std::size_t>(i)] = std::current_exception();
            }
        }
    };
    {
        std::vector<std::jthread> helpers;
        for (int i = 1; i < std::min(threads, count); ++i) helpers.emplace_back(work);
        work();
    }
    for (const auto& fault : faults) {
        if (fault) std::rethrow_exception(fault);
    }
}
