// The simulation compared with a loop that only draws as many numbers and turns each into a die; and the exact odds,
// which must take no noticeable time: at most 2 ms.

#include "battle/dice.h"
#include "battle/odds.h"
#include "battle/simulation.h"

#include <benchmark/benchmark.h>

#include <chrono>

namespace {

using namespace warhost;

constexpr std::int32_t battles = 1'000'000;

class CountingSource final : public RandomSource {
public:
    double next() override
    {
        ++draws;
        return generator_.next();
    }
    std::int64_t draws = 0;

private:
    Generator generator_{1};
};

template <class Work> double nanoseconds(Work&& work)
{
    auto const start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - start).count();
}

/// The time is that of the simulation alone; the best round on each side of the comparison counts.
void simulate(benchmark::State& state)
{
    Simulation simulation{static_cast<int>(state.range(0)), static_cast<int>(state.range(1)), {}};
    CountingSource counting;
    simulation.fight(counting, battles);

    Generator generator{2};
    double best = 1e18;
    double best_reference = 1e18;
    for (auto _ : state) {
        double const time = nanoseconds([&] { simulation.fight(generator, battles); });
        double const reference = nanoseconds([&] {
            Generator local = generator;
            std::int64_t sum = 0;
            for (std::int64_t draw = 0; draw < counting.draws; ++draw) sum += roll_d20(local);
            benchmark::DoNotOptimize(sum);
        });
        best = std::min(best, time);
        best_reference = std::min(best_reference, reference);
        state.SetIterationTime(time * 1e-9);
    }
    state.counters["draws/battle"] = static_cast<double>(counting.draws) / battles;
    state.counters["ns/battle"] = best / battles;
    state.counters["reference_ns"] = best_reference / battles;
    state.counters["ratio"] = best / best_reference;
}

BENCHMARK(simulate)->Args({0, 0})->Args({3, 1})->Args({10, 0})->Args({25, 0})->UseManualTime()->Iterations(30);

void solve(benchmark::State& state)
{
    for (auto _ : state) {
        Odds const odds{static_cast<int>(state.range(0)), static_cast<int>(state.range(1))};
        benchmark::DoNotOptimize(odds.total());
    }
}

BENCHMARK(solve)->Args({0, 0})->Args({10, 0})->Args({25, 0})->Args({32000, 32000})->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
