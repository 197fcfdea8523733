// Measures every case with Google Benchmark, then the peak of memory of each in a process of its
// own, and writes what came of it as a table and as JSON.
//
//   tamborel_bench [--out FILE] [Google Benchmark's options, such as --benchmark_filter=idle]

#include "bench/Figures.h"
#include "bench/Rig.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>

namespace bench {

namespace {

std::vector<Case> all_cases() {
    std::vector<Case> all;
    for (const auto& cases : {apply_cases(), idle_cases(), panel_cases(), scene_cases()})
        all.insert(all.end(), cases.begin(), cases.end());
    return all;
}

std::string full_name(const Case& it) {
    return it.layers ? it.name + "/" + std::to_string(it.layers) : it.name;
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// Turn by turn, so that a busy moment of the machine meets both.
void measure(benchmark::State& state, const Case& it, std::vector<Figure>& figures) {
    try {
        const Pair pair = it.prepare();
        std::vector<double> mine, peer;
        for (auto _ : state) {
            mine.push_back(pair.mine());
            peer.push_back(pair.peer());
            state.SetIterationTime(mine.back());
        }
        const Figure figure{it.name,   it.layers, 1e3 * median(mine), 1e3 * median(peer),
                            it.target, 0};
        state.counters["peer_ms"] = figure.peer_ms;
        state.counters["ratio"] = figure.ratio();
        figures.push_back(figure);
    } catch (const std::exception& error) {
        state.SkipWithError(error.what());
    }
}

// Megabytes at the peak of a process that does a case once; 0 when it failed. The process
// measures itself: what the system reports to its parent includes the parent's own memory.
double peak_of(const std::string& name) {
    const std::string program = std::filesystem::read_symlink("/proc/self/exe");
    FILE* const child = ::popen(("exec '" + program + "' --once '" + name + "'").c_str(), "r");
    if (!child) return 0;
    double kilobytes = 0;
    const int numbers_read = std::fscanf(child, "%lf", &kilobytes);
    return ::pclose(child) == 0 && numbers_read == 1 ? kilobytes / 1024 : 0;
}

long peak_in_kilobytes() {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;)
        if (word == "VmHWM:") {
            long kilobytes = 0;
            status >> kilobytes;
            return kilobytes;
        }
    return 0;
}

int do_once(const std::string& name) {
    for (const Case& it : all_cases())
        if (full_name(it) == name) {
            it.once();
            std::cout << peak_in_kilobytes() << std::endl;
            return 0;
        }
    return 2;
}

int run(int argc, char** argv) {
    std::string out;
    if (argc > 2 && std::string(argv[1]) == "--out") {
        out = argv[2];
        argv[2] = argv[0];
        argc -= 2, argv += 2;
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;

    const std::vector<Case> cases = all_cases();
    std::vector<Figure> figures;
    for (const Case& it : cases)
        if (it.prepare)
            benchmark::RegisterBenchmark(
                full_name(it).c_str(),
                [&](benchmark::State& state) { measure(state, it, figures); })
                ->Iterations(it.turns)
                ->UseManualTime()
                ->Unit(benchmark::kMillisecond);
    const bool everything = benchmark::GetBenchmarkFilter().empty();
    benchmark::RunSpecifiedBenchmarks();

    for (const Case& it : cases) {
        const auto same = [&](const Figure& f) {
            return f.name == it.name && f.layers == it.layers;
        };
        auto figure = std::find_if(figures.begin(), figures.end(), same);
        if (figure == figures.end()) {
            if (it.prepare || !everything) continue;
            figure = figures.insert(figures.end(), Figure{it.name, it.layers});
        }
        figure->peak_mb = peak_of(full_name(it));
    }
    std::cout << table_of(figures);
    if (!out.empty()) {
        std::ofstream file(out);
        file << json_of(figures);
        if (!file.flush()) {
            std::cerr << out << ": cannot be written\n";
            return 1;
        }
    }
    return everything && figures.size() != cases.size() ? 1 : 0;
}

} // namespace

} // namespace bench

int main(int argc, char** argv) {
    try {
        if (argc == 3 && std::string(argv[1]) == "--once") return bench::do_once(argv[2]);
        return bench::run(argc, argv);
    } catch (const std::exception& error) {
        std::cerr << "tamborel_bench: " << error.what() << '\n';
        return 1;
    }
}
