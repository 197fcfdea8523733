// Normal values and derived seeds.

#include "math/random.h"

namespace math {

namespace {

constexpr double two_pi = 6.283185307179586;

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
    for (; n > 0; --n) {
        const std::uint64_t sum = static_cast<std::uint64_t>(seed) * 214013 + 2531011;
        seed = (static_cast<std::int64_t>(sum) >> 16) & 0x7fffffffffffffff;
    }
    return seed;
}

} // namespace math
