// The tables of the lattice hash. They are constants of the program: no initialiser fills them, so
// they are right from the start, and filling them disturbs nobody's sequence.

#include "math/random.h"

namespace math {

namespace {

constexpr double draw(RandomLong& generator) {
    return static_cast<double>(generator.do_next()) * RandomLong::S;
}

constexpr SeedIndexTable2D make_seeds() {
    SeedIndexTable2D table{};
    RandomLong generator(9726083);
    for (std::int64_t& entry : table)
        entry = static_cast<std::int64_t>(draw(generator) * 9990000.0 + 10000.0);
    return table;
}

constexpr RandomdoublesTable make_numbers() {
    RandomdoublesTable table{};
    RandomLong generator(8731469);
    for (double& entry : table) entry = draw(generator);
    return table;
}

constexpr std::int64_t state_after_numbers() {
    RandomLong generator(8731469);
    for (std::size_t k = 0; k < RandomdoublesTable().size(); ++k) generator.do_next();
    return generator.state();
}

} // namespace

constinit const SeedIndexTable2D seeds2d = make_seeds();
constinit const RandomdoublesTable ftable = make_numbers();

// Without a seed, the draws go on where those of the tables ended.
constinit std::int64_t IY = state_after_numbers();

} // namespace math
