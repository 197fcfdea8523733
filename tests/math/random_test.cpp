#include "math/random.h"

#include "tests/math/support.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace {

using Wide = __int128;

constexpr Wide modulus = Wide(1) << 63;

// The recurrence with arithmetic wide enough that nothing wraps.
std::int64_t wide_next(std::int64_t state) {
    const Wide rest = (Wide(3622009729038561285) * state + Wide(1949127854270302209)) % modulus;
    return static_cast<std::int64_t>(rest < 0 ? rest + modulus : rest);
}

// Draws before main, as a stranger's initialiser may: the tables must not step in between.
const std::vector<std::int64_t> drawn_early = [] {
    math::SetRand(42);
    std::vector<std::int64_t> draws{math::LRand()};
    draws.push_back(math::FRandom(3, 4, 5) >= 0 ? math::LRand() : 0);
    return draws;
}();

TEST(Random, SequencesArePinned) {
    math::SetRand(0);
    EXPECT_EQ(math::LRand(), 1949127854270302209);
    EXPECT_EQ(math::LRand(), 779570936502607878);
    math::SetRand(1);
    EXPECT_EQ(math::Rand(), std::ldexp(5571137583308863494.0, -63));
    EXPECT_EQ(drawn_early, (std::vector{wide_next(42), wide_next(wide_next(42))}));
}

TEST(Random, EveryStateStepsAsInWideArithmetic) {
    using Limits = std::numeric_limits<std::int64_t>;
    std::mt19937_64 engine(3);
    std::vector<std::int64_t> seeds{0, 1, -1, Limits::max(), Limits::min(), Limits::min() + 1};
    while (seeds.size() < 5000) seeds.push_back(static_cast<std::int64_t>(engine()));
    for (const std::int64_t seed : seeds) {
        math::SetRand(seed);
        EXPECT_EQ(math::LRand(), wide_next(seed)) << seed;
        math::SetRand(seed);
        const double u = math::Rand();
        EXPECT_EQ(u, std::ldexp(static_cast<double>(wide_next(seed)), -63));
        math::SetRand(seed);
        const double ranged = math::Rand(5.0);
        EXPECT_TRUE(-5 <= ranged && ranged <= 5);
        EXPECT_NEAR(ranged, 10 * u - 5, 1e-14);
        math::RandomLong object(seed);
        object.do_next();
        EXPECT_EQ(object.do_next(), wide_next(wide_next(seed)));
    }
}

TEST(Random, DrawsAreSpreadEvenly) {
    math::SetRand(7);
    std::array<int, 64> bins{};
    for (int i = 0; i < 64000; ++i) ++bins[std::min(63, static_cast<int>(64 * math::Rand()))];
    for (const int count : bins) EXPECT_NEAR(count, 1000, 160);
}

TEST(Random, NormalValuesHaveTheirMoments) {
    math::SetRand(11);
    math::GaussRandom object(12345, 3.0);
    double sum = 0, squares = 0, object_sum = 0, object_squares = 0;
    int within_one = 0;
    const int n = 40000;
    for (int i = 0; i < n; ++i) {
        const double g = math::Gauss();
        object.do_next();
        sum += g;
        squares += g * g;
        within_one += std::fabs(g) < 1;
        object_sum += object.current();
        object_squares += object.current() * object.current();
    }
    EXPECT_NEAR(sum / n, 0, 0.03);
    EXPECT_NEAR(squares / n, 1, 0.04);
    EXPECT_NEAR(within_one / double(n), 0.6827, 0.01);
    EXPECT_NEAR(object_sum / n, 0, 0.09);
    EXPECT_NEAR(object_squares / n, 9, 0.36);
}

TEST(Random, GaussRandomAgreesWithTheProcessWideOne) {
    math::GaussRandom object(77);
    math::SetRand(math::RandomLong::next(77));
    const double at_reset = object.current();
    for (int i = 0; i < 100; ++i) {
        object.do_next();
        const double global = math::Gauss();
        EXPECT_NEAR(object.current(), global, 1e-12 * (1 + std::fabs(global)));
        EXPECT_EQ(object.current(), object.current());
    }
    object.reset();
    EXPECT_EQ(object.current(), at_reset);
}

TEST(Random, DerivedSeeds) {
    EXPECT_EQ(math::GetRandomSeed(12345, 0), 12345);
    EXPECT_EQ(math::GetRandomSeed(12345, -3), 12345);
    // The usual 16 bits further: (1 * 214013 + 2531011) / 65536 = 41.8...
    EXPECT_EQ(math::GetRandomSeed(1, 1), 41);
    std::int64_t stepped = -987654321987654321;
    for (int n = 1; n <= 2000; ++n) {
        const Wide wrapped = static_cast<std::int64_t>(Wide(stepped) * 214013 + 2531011);
        stepped = static_cast<std::int64_t>((wrapped >> 16) & (modulus - 1));
        EXPECT_EQ(math::GetRandomSeed(-987654321987654321, n), stepped);
    }
}

TEST(Random, DerivedSeedsEndForAnyCount) {
    // Whole turns of the cycle are left out; one step more must be one step more all the same.
    const std::int64_t far = std::numeric_limits<std::int64_t>::max() - 1;
    const std::int64_t before = math::GetRandomSeed(5, far);
    EXPECT_EQ(math::GetRandomSeed(5, far + 1), math::GetRandomSeed(before, 1));
    EXPECT_EQ(math::GetRandomSeed(math::GetRandomSeed(5, 40000000), 40000000),
              math::GetRandomSeed(5, 80000000));
}

TEST(Random, TablesAreTheDrawsAfterTheirSeeds) {
    std::int64_t state = 9726083;
    for (const std::int64_t entry : math::seeds2d) {
        state = wide_next(state);
        EXPECT_EQ(entry, static_cast<std::int64_t>(state * 0x1p-63 * 9990000.0 + 10000.0));
        EXPECT_TRUE(10000 <= entry && entry <= 10000000);
    }
    state = 8731469;
    for (const double entry : math::ftable) {
        state = wide_next(state);
        EXPECT_EQ(entry, state * 0x1p-63);
    }
}

TEST(Random, LatticeHashRepeatsItsTableEvery127Rows) {
    std::mt19937_64 engine(4);
    std::vector<std::array<std::int64_t, 3>> points{{0, 0, 0},
                                                    {126, 127, 1},
                                                    {-1, -127, 3},
                                                    {-128, 128, -9},
                                                    {INT64_MIN, INT64_MAX, INT64_MIN}};
    while (points.size() < 3000) {
        const auto i = static_cast<std::int64_t>(engine()), j = static_cast<std::int64_t>(engine());
        points.push_back({i, j, static_cast<std::int64_t>(engine())});
    }
    for (const auto& [i, j, seed] : points) {
        const int row = static_cast<int>(((Wide(i) % 127) + 127) % 127);
        const int column = static_cast<int>(((Wide(j) % 127) + 127) % 127);
        Wide low = (Wide(seed) * i + j + math::seeds2d[128 * row + column]) % 8192;
        if (low < 0) low += 8192;
        EXPECT_EQ(math::FRandom(i, j, seed), math::ftable[static_cast<int>(low)]);
    }
    EXPECT_EQ(math::FRandom(5 + 127, 9, 8192), math::FRandom(5, 9, 8192));
    EXPECT_NE(math::FRandom(5 + 127, 9, 1), math::FRandom(5, 9, 1));
}

} // namespace
