// How long the sensor map's tick and the navigator's tick take, beside a plain loop that only touches the
// same cells, rays and sectors, lap by lap in the same run.
//
//   bench_navigation --ticks N    runs N pairs of ticks and nothing else, for counting instructions
#include <chrono>
#include <cstdlib>
#include <memory>
#include <string>

#include "bench_main.h"
#include "plain_touch.h"

namespace quorrin::bench {
namespace {

constexpr std::size_t kLap = 1600;  // a hundred fading passes
constexpr double kAimedRatio = 2.0;

using Clockwork = std::chrono::steady_clock;

struct Scene {
    std::vector<WanderSample> samples = makeWander(kLap);
    std::unique_ptr<WanderTasks> tasks = std::make_unique<WanderTasks>();
    std::unique_ptr<PlainTouch> plain = std::make_unique<PlainTouch>(samples, PlainTouch::Fading::plain);
    std::unique_ptr<PlainTouch> bare = std::make_unique<PlainTouch>(samples, PlainTouch::Fading::vectorised);
};

Scene& scene() {
    static Scene once;
    return once;
}

enum class Part { map, navigator, both };
double ratioToPlain = 0;
double ratioToBare = 0;

template <typename Tick>
double secondsOfLap(const Tick& tick) {
    const auto begin = Clockwork::now();
    for (std::size_t i = 0; i < kLap; ++i) tick(i);
    return std::chrono::duration<double>(Clockwork::now() - begin).count();
}

double lapOfTicks(Part part) {
    Scene& s = scene();
    return secondsOfLap([&](std::size_t i) {
        s.tasks->load(s.samples[i]);
        if (part != Part::navigator) s.tasks->map.RunTimer_Timer(100);
        if (part != Part::map) s.tasks->navigator.RunTimer_Timer(100);
    });
}

double lapOfTouch(PlainTouch& touch, Part part) {
    int sum = 0;
    const double seconds = secondsOfLap([&](std::size_t i) {
        if (part != Part::navigator) sum += touch.map(i);
        if (part != Part::map) sum += touch.navigator();
        benchmark::DoNotOptimize(sum);
    });
    return seconds;
}

void ticks(benchmark::State& state, Part part) {
    if (part == Part::navigator) lapOfTicks(Part::both);
    double own = 0;
    double plain = 0;
    double bare = 0;
    for (auto _ : state) {
        const double lap = lapOfTicks(part);
        own += lap;
        plain += lapOfTouch(*scene().plain, part);
        if (part == Part::both) bare += lapOfTouch(*scene().bare, part);
        state.SetIterationTime(lap / static_cast<double>(kLap));
    }
    state.counters["baseline"] = plain / static_cast<double>(state.iterations()) / kLap * 1e9;
    if (part != Part::both) return;
    ratioToPlain = own / plain;
    ratioToBare = own / bare;
}

void registerAll() {
    const auto add = [](const char* name, Part part) {
        benchmark::RegisterBenchmark(name, [part](benchmark::State& state) { ticks(state, part); })
            ->UseManualTime()
            ->Iterations(500);
    };
    add("sensor map tick", Part::map);
    add("navigator tick", Part::navigator);
    add("sensor map and navigator ticks", Part::both);
}

int runTicks(long count) {
    Scene& s = scene();
    for (long i = 0; i < count; ++i) {
        s.tasks->load(s.samples[static_cast<std::size_t>(i) % kLap]);
        s.tasks->map.RunTimer_Timer(100);
        s.tasks->navigator.RunTimer_Timer(100);
    }
    return s.tasks->silent.velocityCommands() > 0 || count == 0 ? 0 : 1;
}

}  // namespace
}  // namespace quorrin::bench

int main(int argc, char** argv) {
    using namespace quorrin::bench;
    if (argc == 3 && std::string(argv[1]) == "--ticks") return runTicks(std::atol(argv[2]));
    registerAll();
    const int status = runBenchmarks(argc, argv);
    if (status != 0) return status;
    printFigure("sensor map and navigator ratio", ratioToPlain, "times the plain loop", kAimedRatio);
    printFigure("sensor map and navigator ratio, the loop's fading vectorised too", ratioToBare,
                "times that loop");
    return 0;
}
