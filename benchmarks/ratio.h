#pragma once

#include <benchmark/benchmark.h>

#include <chrono>

// Times a subject and a plain baseline in turn and reports how many times longer the subject takes,
// as the counter "ratio". The benchmark's own time is the subject's.
template <class Subject, class Baseline>
void MeasureRatio(benchmark::State& state, Subject subject, Baseline baseline) {
  using Clock = std::chrono::steady_clock;
  std::chrono::duration<double> subjectTime{}, baselineTime{};
  for (auto unused : state) {
    (void)unused;
    const auto start = Clock::now();
    subject();
    const auto middle = Clock::now();
    baseline();
    const auto end = Clock::now();
    subjectTime += middle - start;
    baselineTime += end - middle;
    state.SetIterationTime(std::chrono::duration<double>(middle - start).count());
  }
  state.counters["ratio"] = subjectTime / baselineTime;
}
