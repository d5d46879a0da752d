#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>

// The shortest times that a subject and a baseline took. The machine's other work only ever
// lengthens a run, so that the shortest are the ones to compare.
class Ratio {
 public:
  // Times both, in turn, for as long as the benchmark runs. Its own time is the subject's.
  template <class Subject, class Baseline>
  Ratio(benchmark::State& state, Subject subject, Baseline baseline) {
    for (auto unused : state) {
      (void)unused;
      const Seconds time = TimeOf(subject);
      subject_ = std::min(subject_, time);
      baseline_ = std::min(baseline_, TimeOf(baseline));
      state.SetIterationTime(time.count());
    }
  }

  double Faster() const { return baseline_ / subject_; }
  double Longer() const { return subject_ / baseline_; }

 private:
  using Seconds = std::chrono::duration<double>;

  template <class Work>
  static Seconds TimeOf(Work work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    benchmark::ClobberMemory();
    return std::chrono::steady_clock::now() - start;
  }

  Seconds subject_ = Seconds::max(), baseline_ = Seconds::max();
};
