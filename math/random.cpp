// Normal values and derived seeds.

#include "math/random.h"

namespace math {

namespace {

constexpr double two_pi = 6.283185307179586;

constexpr std::int64_t derived_seed(std::int64_t seed) {
    const std::int64_t sum =
        static_cast<std::int64_t>(static_cast<std::uint64_t>(seed) * 214013 + 2531011);
    return (sum >> 16) & 0x7fffffffffffffff;
}

} // namespace

double Gauss() {
    const double u1 = Rand();
    const double u2 = Rand();
    return std::sqrt(-2 * std::log(u1)) * std::cos(two_pi * u2);
}

GaussRandom::GaussRandom(std::int64_t seed, double deviation)
    : _state(seed), _seed(seed), _scale(deviation), _first(0) {
    GaussRandom::reset();
}

void GaussRandom::reset() {
    _state = RandomLong(_seed);
    _first = static_cast<double>(_seed) * RandomLong::S;
    _state.do_next();
}

double GaussRandom::current() const {
    constexpr double angle_step = 3.141592653589793 / static_cast<double>(RandomLong::M2);
    return std::sqrt(-2 * std::log(_first)) * _scale *
           std::cos(angle_step * static_cast<double>(_state.state()));
}

void GaussRandom::do_next() {
    _first = static_cast<double>(_state.do_next()) * RandomLong::S;
    _state.do_next();
}

std::int64_t GetRandomSeed(std::int64_t seed, std::int64_t n) {
    // A cycle is found when the seed comes back to the one kept at the last power of two (Brent's
    // method); whole turns of it are left out then.
    std::int64_t kept = seed;
    std::int64_t steps_since = 0, power = 1;
    bool in_cycle = false;
    for (; n > 0; --n) {
        seed = derived_seed(seed);
        if (in_cycle) continue;
        ++steps_since;
        if (seed == kept) {
            n = (n - 1) % steps_since + 1;
            in_cycle = true;
        } else if (steps_since == power) {
            kept = seed;
            steps_since = 0;
            power *= 2;
        }
    }
    return seed;
}

} // namespace math
