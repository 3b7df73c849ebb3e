#pragma once
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <vector>

namespace jv::bench {

// Runs body repeatedly in batches and returns the median time of one call,
// in microseconds.
template <typename Body>
double MedianMicros(Body body, int batches = 21, int callsPerBatch = 200) {
    std::vector<double> times;
    for (int b = 0; b < batches; ++b) {
        const auto start = std::chrono::steady_clock::now();
        for (int i = 0; i < callsPerBatch; ++i) body();
        const std::chrono::duration<double, std::micro> spent = std::chrono::steady_clock::now() - start;
        times.push_back(spent.count() / callsPerBatch);
    }
    std::nth_element(times.begin(), times.begin() + times.size() / 2, times.end());
    return times[times.size() / 2];
}

inline void Report(const char* what, const char* position, double micros) {
    std::printf("%-28s %-22s %12.2f us\n", what, position, micros);
}

// The calling thread's processor time so far, in seconds: on a shared
// machine it shows the work without the waits other processes cause.
inline double ThreadCpuSeconds() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

}  // namespace jv::bench
