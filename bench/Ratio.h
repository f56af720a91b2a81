// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <vector>

namespace deckforge {

/// Durations in seconds. The median is least affected by other load.
class Timings {
public:
    template <class Step>
    double Run(Step&& step)
    {
        using Clock = std::chrono::steady_clock;
        const Clock::time_point start = Clock::now();
        step();
        const std::chrono::duration<double> taken = Clock::now() - start;
        m_seconds.push_back(taken.count());
        return taken.count();
    }

    [[nodiscard]] double Median()
    {
        const auto middle = m_seconds.begin() + static_cast<std::ptrdiff_t>(m_seconds.size() / 2);
        std::nth_element(m_seconds.begin(), middle, m_seconds.end());
        return *middle;
    }

private:
    std::vector<double> m_seconds;
};

/// Measures the step and the reference alternately, and prints the ratio of their durations. The benchmark
/// needs UseManualTime().
template <class Step, class Limit>
void MeasureBeside(benchmark::State& state, Step&& step, Limit&& limit)
{
    Timings steps;
    Timings limits;
    for (auto _ : state) {
        limits.Run(limit);
        state.SetIterationTime(steps.Run(step));
    }
    state.counters["times the limit"] = steps.Median() / limits.Median();
}

/// Measures the step relative to a screen frame of 16 ms.
template <class Step, class Before>
void MeasureBesideFrame(benchmark::State& state, Step&& step, Before&& before)
{
    constexpr double frame = 0.016; // seconds
    Timings steps;
    for (auto _ : state) {
        before();
        state.SetIterationTime(steps.Run(step));
    }
    state.counters["of 16 ms"] = steps.Median() / frame;
}

template <class Step>
void MeasureBesideFrame(benchmark::State& state, Step&& step)
{
    MeasureBesideFrame(state, step, [] {});
}

} // namespace deckforge
