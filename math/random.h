// The process-wide random generator, the same recurrence as an object, normal values, and the
// lattice hash behind the value noise.
//
// A sequence is a format: state' = (a * state + c) mod 2^63, a linear congruential generator with
// a = 5 (mod 8) and odd c, so of full period (Knuth, The Art of Computer Programming, 3.2.1; the
// choice of a and c from pi and the square root of 3 is that of Forsythe, Malcolm and Moler's
// URAND). A state s maps to the unit interval as s * 2^-63, rounded to double: 0 is possible, and
// so is 1, which the 512 highest states round up to. Nothing here is locked.

#pragma once

#include <array>
#include <cmath>
#include <cstdint>

namespace math {

// The generator as an object: one state, independent of the process-wide one and of other objects.
class RandomLong {
  public:
    static constexpr std::int64_t M2 = 0x4000000000000000;     // half of the modulus 2^63
    static constexpr double S = 0.5 / static_cast<double>(M2); // maps a state to [0, 1]

    static constexpr std::int64_t multiplier =
        8 * static_cast<std::int64_t>(static_cast<double>(M2) * 0.09817477042468103) + 5; // pi/32
    static constexpr std::int64_t increment = // (3 - sqrt 3) / 6
        2 * static_cast<std::int64_t>(static_cast<double>(M2) * 0.21132486540518713) + 1;
    static_assert(multiplier == 0x3243f6a8885a3005 && increment == 0x1b0cb174df99c801);

    constexpr explicit RandomLong(std::int64_t seed = 0) : _state(seed) {}

    // The state after the given one, in [0, 2^63 - 1]; every 64-bit state is valid, a negative one
    // too. The lower 63 bits of the wrapped sum are the remainder.
    static constexpr std::int64_t next(std::int64_t state) {
        const std::uint64_t sum =
            static_cast<std::uint64_t>(multiplier) * static_cast<std::uint64_t>(state) +
            static_cast<std::uint64_t>(increment);
        return static_cast<std::int64_t>(sum & 0x7fffffffffffffff);
    }

    constexpr std::int64_t state() const { return _state; }
    // Steps once and returns the new state.
    constexpr std::int64_t do_next() { return _state = next(_state); }

  private:
    std::int64_t _state;
};

// The state of the process-wide generator.
extern std::int64_t IY;

// Starts the sequence of the seed; any seed is valid.
inline void SetRand(std::int64_t seed) {
    IY = seed;
}

// Draws an integer in [0, 2^63 - 1].
inline std::int64_t LRand() {
    return IY = RandomLong::next(IY);
}

// Draws a number in [0, 1].
inline double Rand() {
    return static_cast<double>(LRand()) * RandomLong::S;
}

// Draws a number in [-range, range].
inline double Rand(double range) {
    return (2 * Rand() - 1) * range;
}

// Draws a standard normal value from two steps (Box and Muller, A Note on the Generation of Random
// Normal Deviates, 1958). It is infinite when the first step draws exactly 0.
double Gauss();

// A source of random numbers that can be read again and started over.
class RandomNumber {
  public:
    virtual void reset() = 0;
    virtual double current() const = 0;
    virtual void do_next() = 0;
    virtual ~RandomNumber() = default;
};

// Normal values of mean 0 and the given standard deviation (Box-Muller), from a state of its own.
class GaussRandom : public RandomNumber {
  public:
    explicit GaussRandom(std::int64_t seed, double deviation = 1.0);

    // Back to the seed, which is also the first uniform number: the value before the first do_next
    // is infinite for the seed 0, and NaN for a negative seed.
    void reset() override;
    // The present value; the same until the next do_next.
    double current() const override;
    // Steps twice: one uniform number for the radius, one for the angle.
    void do_next() override;

  private:
    RandomLong _state; // carries the second uniform number
    std::int64_t _seed;
    double _scale;
    double _first;
};

// Derives a further seed by taking n times seed = (seed * 214013 + 2531011) >> 16, without its
// sign bit; n <= 0 gives the seed itself.
std::int64_t GetRandomSeed(std::int64_t seed, std::int64_t n);

// 128 x 128 seeds of [10000, 10000000], row-major, and 8192 numbers of [0, 1]. Both are the draws
// that follow a fixed seed, computed by the compiler, so they are there before any initialiser.
using SeedIndexTable2D = std::array<std::int64_t, 128 * 128>;
using RandomdoublesTable = std::array<double, 8192>;
extern const SeedIndexTable2D seeds2d;
extern const RandomdoublesTable ftable;

// The remainder of the division by 127 in [0, 126], for negative numbers too.
constexpr std::int64_t lattice_row(std::int64_t i) {
    const std::int64_t remainder = i % 127;
    return remainder < 0 ? remainder + 127 : remainder;
}

// The hash of the lattice point (i, j) in the lattice that the seed selects: a number of [0, 1].
// The table of seeds repeats every 127 rows and columns.
inline double FRandom(std::int64_t i, std::int64_t j, std::int64_t seed) {
    const std::uint64_t entry =
        static_cast<std::uint64_t>(seeds2d[128 * lattice_row(i) + lattice_row(j)]);
    const std::uint64_t sum = static_cast<std::uint64_t>(seed) * static_cast<std::uint64_t>(i) +
                              static_cast<std::uint64_t>(j) + entry;
    return ftable[sum & 0x1fff];
}

} // namespace math
