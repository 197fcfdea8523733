#include "math/random.h"

#include "tests/math/support.h"

#include <vector>

namespace {

using Wide = __int128;

constexpr Wide modulus = Wide(1) << 63;

// The recurrence with arithmetic wide enough that nothing wraps.
std::int64_t wide_next(std::int64_t state) {
    const Wide rest = (Wide(3622009729038561285) * state + Wide(1949127854270302209)) % modulus;
    return static_cast<std::int64_t>(rest < 0 ? rest + modulus : rest);
}

// Draws before main, as any initialiser may: filling the tables must not come in between.
const std::int64_t drawn_early = [] {
    math::SetRand(wide_next(42));
    return math::FRandom(3, 4, 5) >= 0 ? math::LRand() : 0;
}();

TEST(Random, SequencesArePinned) {
    math::SetRand(0);
    EXPECT_EQ(math::LRand(), 1949127854270302209);
    EXPECT_EQ(math::LRand(), 779570936502607878);
    math::SetRand(1);
    EXPECT_EQ(math::Rand(), 5571137583308863494 * 0x1p-63);
    EXPECT_EQ(drawn_early, wide_next(wide_next(42)));
}

TEST(Random, EveryStateStepsAsInWideArithmetic) {
    std::mt19937_64 engine(3);
    std::vector<std::int64_t> seeds{0, 1, -1, INT64_MAX, INT64_MIN, INT64_MIN + 1};
    while (seeds.size() < 5000) seeds.push_back(static_cast<std::int64_t>(engine()));
    for (const std::int64_t seed : seeds) {
        math::SetRand(seed);
        EXPECT_EQ(math::LRand(), wide_next(seed)) << seed;
        math::SetRand(seed);
        EXPECT_NEAR(math::Rand(5.0), wide_next(seed) * 10.0 * 0x1p-63 - 5, 1e-14);
        math::RandomLong object(seed);
        object.do_next();
        EXPECT_EQ(object.do_next(), wide_next(wide_next(seed)));
    }
}

TEST(Random, NormalValuesHaveTheirVariance) {
    math::GaussRandom object(77, 3.0);
    math::SetRand(math::RandomLong::next(77));
    const double at_reset = object.current();
    double squares = 0;
    for (int i = 0; i < 40000; ++i) {
        const double g = math::Gauss();
        squares += g * g / 40000;
        object.do_next();
        EXPECT_NEAR(object.current(), 3 * g, 1e-12 * (1 + std::fabs(g)));
    }
    EXPECT_NEAR(squares, 1, 0.04);
    object.reset();
    EXPECT_EQ(object.current(), at_reset);
}

TEST(Random, DerivedSeeds) {
    std::int64_t stepped = -987654321987654321;
    EXPECT_EQ(math::GetRandomSeed(stepped, 0), stepped);
    for (int n = 1; n <= 2000; ++n) {
        const Wide wrapped = static_cast<std::int64_t>(Wide(stepped) * 214013 + 2531011);
        stepped = static_cast<std::int64_t>((wrapped >> 16) & (modulus - 1));
        EXPECT_EQ(math::GetRandomSeed(-987654321987654321, n), stepped);
    }
}

TEST(Random, TablesAreTheDrawsAfterTheirSeeds) {
    std::int64_t state = 9726083;
    for (const std::int64_t entry : math::seeds2d) {
        state = wide_next(state);
        EXPECT_EQ(entry, static_cast<std::int64_t>(state * 0x1p-63 * 9990000.0 + 10000.0));
    }
    state = 8731469;
    for (const double entry : math::ftable) {
        state = wide_next(state);
        EXPECT_EQ(entry, state * 0x1p-63);
    }
}

TEST(Random, LatticeHashRepeatsItsTableEvery127Rows) {
    std::mt19937_64 engine(4);
    for (int n = 0; n < 3000; ++n) {
        const auto i = static_cast<std::int64_t>(engine()) >> (n % 64);
        const auto j = n % 7 ? static_cast<std::int64_t>(engine()) : INT64_MIN + n % 2;
        const auto seed = static_cast<std::int64_t>(engine());
        const auto row = static_cast<int>((Wide(i) % 127 + 127) % 127);
        const auto column = static_cast<int>((Wide(j) % 127 + 127) % 127);
        const Wide place = (Wide(seed) * i + j + math::seeds2d[128 * row + column]) % 8192;
        EXPECT_EQ(math::FRandom(i, j, seed), math::ftable[static_cast<int>((place + 8192) % 8192)]);
    }
}

} // namespace
