// Times the math library beside Eigen, glm, libnoise and the standard generator, all in double
// precision and in one run, and prints how the times compare.
//
// Each case is "operation/library" and works on arrays that fit into the first-level cache; the
// table at the end shows nanoseconds per operation, the best of all repetitions.

#include "math/matrix.h"
#include "math/noise.h"
#include "math/random.h"

#include <benchmark/benchmark.h>
#include <Eigen/Dense>
#include <Eigen/Geometry>
#include <glm/glm.hpp>
#include <libnoise/module/perlin.h>
#include <libnoise/noisegen.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace {

using M3 = math::TMatrix3D<double>;
using V3 = math::TGeomVector3D<double>;

constexpr int points = 256;
constexpr int matrices = 32;

double number(double low, double high) {
    static std::mt19937_64 engine(1);
    return std::uniform_real_distribution<double>(low, high)(engine);
}

std::vector<V3> random_points() {
    std::vector<V3> all(points);
    for (V3& p : all) p = {number(-9, 9), number(-9, 9), number(-9, 9)};
    return all;
}

std::vector<M3> general_matrices() {
    std::vector<M3> all(matrices);
    for (M3& m : all) {
        for (int i = 0; i < 16; ++i) m(i / 4, i % 4) = number(-2, 2) + (i == 15 ? 90 : 0);
        m.setFlags();
    }
    return all;
}

std::vector<M3> rigid_matrices() {
    std::vector<M3> all;
    for (const V3& p : random_points())
        if (all.size() < matrices)
            all.push_back(M3::BuildShift(p) * M3::BuildRotate(V3::Ey(), p.x));
    return all;
}

// The same numbers in the peers' types.
template <typename Matrix>
Matrix converted(const M3& m) {
    Matrix result;
    for (int r = 0; r < 4; ++r)
        for (int c = 0; c < 4; ++c) {
            if constexpr (std::is_same_v<Matrix, glm::dmat4>)
                result[c][r] = m(r, c);
            else
                result(r, c) = m(r, c);
        }
    return result;
}

template <typename Matrix>
std::vector<Matrix> converted(const std::vector<M3>& all) {
    std::vector<Matrix> result;
    for (const M3& m : all) result.push_back(converted<Matrix>(m));
    return result;
}

// Applies `work` to every element, with another one for operations on two. Not inlined, so that
// every case is compiled the same way.
template <typename Result, typename In, typename Work>
[[gnu::noinline]] void apply(const In* in, Result* out, std::size_t count, Work work) {
    for (std::size_t i = 0; i < count; ++i) out[i] = work(in[i], in[count - 1 - i]);
}

template <typename Result, typename In, typename Work>
void each(benchmark::State& state, const std::vector<In>& in, Work work) {
    std::vector<Result> out(in.size());
    for (auto _ : state) {
        apply(in.data(), out.data(), in.size(), work);
        benchmark::DoNotOptimize(out.data());
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(in.size()));
}

template <typename Work>
void add(const char* name, Work work) {
    benchmark::RegisterBenchmark(name, work);
}

void add_draws() {
    add("draw/ours", [](benchmark::State& state) {
        math::SetRand(1);
        each<double>(state, random_points(), [](auto&, auto&) { return math::Rand(); });
    });
    add("draw/mt19937_64", [](benchmark::State& state) {
        std::mt19937_64 engine(1);
        each<double>(state, random_points(), [&](auto&, auto&) {
            return static_cast<double>(static_cast<std::int64_t>(engine() >> 1)) * 0x1p-63;
        });
    });
}

void add_points(const std::string& name, const M3& m) {
    const bool rigid = m.is_rigid();
    add((name + "/ours").c_str(), [m](benchmark::State& state) {
        M3 matrix = m;
        benchmark::DoNotOptimize(matrix);
        each<V3>(state, random_points(), [&](const V3& v, auto&) { return matrix * v; });
    });
    add((name + "/Eigen").c_str(), [=](benchmark::State& state) {
        Eigen::Matrix4d matrix = converted<Eigen::Matrix4d>(m);
        benchmark::DoNotOptimize(matrix);
        std::vector<Eigen::Vector4d> in;
        for (const V3& p : random_points()) in.emplace_back(p.x, p.y, p.z, 1);
        if (rigid)
            each<Eigen::Vector4d>(state, in,
                                  [&](auto& v, auto&) -> Eigen::Vector4d { return matrix * v; });
        else
            each<Eigen::Vector3d>(state, in, [&](auto& v, auto&) -> Eigen::Vector3d {
                return (matrix * v).hnormalized();
            });
    });
    if (rigid)
        add((name + "/Eigen Isometry").c_str(), [=](benchmark::State& state) {
            Eigen::Isometry3d matrix(converted<Eigen::Matrix4d>(m));
            benchmark::DoNotOptimize(matrix);
            std::vector<Eigen::Vector3d> in;
            for (const V3& p : random_points()) in.emplace_back(p.x, p.y, p.z);
            each<Eigen::Vector3d>(state, in,
                                  [&](auto& v, auto&) -> Eigen::Vector3d { return matrix * v; });
        });
    add((name + "/glm").c_str(), [=](benchmark::State& state) {
        glm::dmat4 matrix = converted<glm::dmat4>(m);
        benchmark::DoNotOptimize(matrix);
        std::vector<glm::dvec3> in;
        for (const V3& p : random_points()) in.emplace_back(p.x, p.y, p.z);
        each<glm::dvec3>(state, in, [&](auto& v, auto&) {
            const glm::dvec4 image = matrix * glm::dvec4(v, 1);
            return rigid ? glm::dvec3(image) : glm::dvec3(image) / image.w;
        });
    });
}

void add_products(const std::string& name, const std::vector<M3>& all) {
    add((name + "/ours").c_str(), [all](benchmark::State& state) {
        each<M3>(state, all, [](auto& a, auto& b) { return a * b; });
    });
    add((name + "/Eigen").c_str(), [all](benchmark::State& state) {
        each<Eigen::Matrix4d>(state, converted<Eigen::Matrix4d>(all),
                              [](auto& a, auto& b) -> Eigen::Matrix4d { return a * b; });
    });
    if (all[0].is_rigid())
        add((name + "/Eigen Isometry").c_str(), [all](benchmark::State& state) {
            each<Eigen::Isometry3d>(state, converted<Eigen::Isometry3d>(all),
                                    [](auto& a, auto& b) -> Eigen::Isometry3d { return a * b; });
        });
    add((name + "/glm").c_str(), [all](benchmark::State& state) {
        each<glm::dmat4>(state, converted<glm::dmat4>(all), [](auto& a, auto& b) { return a * b; });
    });
}

void add_inverses(const std::string& name, const std::vector<M3>& all) {
    add((name + "/ours").c_str(), [all](benchmark::State& state) {
        each<M3>(state, all, [](auto& a, auto&) { return a.Inversed(); });
    });
    add((name + "/Eigen").c_str(), [all](benchmark::State& state) {
        each<Eigen::Matrix4d>(state, converted<Eigen::Matrix4d>(all),
                              [](auto& a, auto&) -> Eigen::Matrix4d { return a.inverse(); });
    });
    if (all[0].is_rigid())
        add((name + "/Eigen Isometry").c_str(), [all](benchmark::State& state) {
            each<Eigen::Isometry3d>(
                state, converted<Eigen::Isometry3d>(all),
                [](auto& a, auto&) -> Eigen::Isometry3d { return a.inverse(); });
        });
    add((name + "/glm").c_str(), [all](benchmark::State& state) {
        each<glm::dmat4>(state, converted<glm::dmat4>(all),
                         [](auto& a, auto&) { return glm::inverse(a); });
    });
}

// libnoise has no value noise of the plane. Its value noise of space blends eight lattice points
// by the same smoothstep, as many as our two lattices together; of its modules, Perlin with one
// octave is the nearest.
void add_noise() {
    add("value noise/ours", [](benchmark::State& state) {
        each<double>(state, random_points(),
                     [](auto& p, auto&) { return math::VNoise2D::value(p.x, p.y, 3, 1); });
    });
    add("value noise/libnoise ValueCoherentNoise3D", [](benchmark::State& state) {
        each<double>(state, random_points(), [](auto& p, auto&) {
            return noise::ValueCoherentNoise3D(p.x, p.y, p.z, 3, noise::QUALITY_STD);
        });
    });
    add("value noise/libnoise Perlin", [](benchmark::State& state) {
        noise::module::Perlin perlin;
        perlin.SetOctaveCount(1);
        each<double>(state, random_points(),
                     [&](auto& p, auto&) { return perlin.GetValue(p.x, p.y, p.z); });
    });
}

// Keeps the best time of every case, for the table.
class Comparison : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.run_type != Run::RT_Iteration || run.error_occurred) continue;
            const std::string name = run.run_name.function_name;
            const double ns = 1e9 / run.counters.at("items_per_second").value;
            const auto slash = name.find('/');
            const auto [place, is_new] =
                _best[name.substr(0, slash)].emplace(name.substr(slash + 1), ns);
            if (!is_new) place->second = std::min(place->second, ns);
        }
    }

    void print() const {
        std::printf("%-26s %9s %14s %7s  %s\n", "", "ours, ns", "best peer, ns", "ratio", "peer");
        for (const auto& [what, times] : _best) {
            const auto ours = times.find("ours");
            auto peer = times.end();
            for (auto it = times.begin(); it != times.end(); ++it)
                if (it != ours && (peer == times.end() || it->second < peer->second)) peer = it;
            if (ours == times.end() || peer == times.end()) continue;
            std::printf("%-26s %9.2f %14.2f %7.2f  %s\n", what.c_str(), ours->second, peer->second,
                        ours->second / peer->second, peer->first.c_str());
        }
    }

  private:
    std::map<std::string, std::map<std::string, double>> _best;
};

} // namespace

int main(int argc, char** argv) {
    // Cases take turns, so that a busy moment of the machine hits all of them; options given on the
    // command line come later and win.
    char interleaved[] = "--benchmark_enable_random_interleaving=true";
    char repetitions[] = "--benchmark_repetitions=15";
    char time[] = "--benchmark_min_time=0.02";
    std::vector<char*> arguments{argv[0], interleaved, repetitions, time};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 1;

    add_draws();
    add_points("matrix * vector, rigid", rigid_matrices()[0]);
    add_points("matrix * vector, general", general_matrices()[0]);
    add_products("matrix * matrix, rigid", rigid_matrices());
    add_products("matrix * matrix, general", general_matrices());
    add_inverses("inverse, rigid", rigid_matrices());
    add_inverses("inverse, general", general_matrices());
    add_noise();
    Comparison comparison;
    benchmark::RunSpecifiedBenchmarks(&comparison);
    comparison.print();
    return 0;
}
