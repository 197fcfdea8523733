// The bytes of a fuzz target's input, taken as values one after the other; after their end come
// zeros. What a target asserts goes through require(), so that a failure says what was wrong.

#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string>
#include <string_view>

namespace fuzz {

class Bytes {
  public:
    Bytes(const std::uint8_t* data, std::size_t size) : _data(data), _size(size) {}

    bool empty() const { return _size == 0; }

    template <typename Value>
    Value take() {
        Value value{};
        const std::size_t count = sizeof value < _size ? sizeof value : _size;
        if (count) std::memcpy(&value, _data, count);
        _data += count, _size -= count;
        return value;
    }
    bool flag() { return take<std::uint8_t>() & 1; }
    // In [least, greatest], whose span is below 65536.
    int integer(int least, int greatest) {
        return least + take<std::uint16_t>() % (greatest - least + 1);
    }
    // Any double but NaN and the infinities.
    double finite() {
        const double value = number();
        return std::isfinite(value) ? value : 0;
    }
    // Any double; one byte chooses between those that tend to be trouble, small ones that tend to
    // be equal, and any bits at all.
    double number() {
        static constexpr double awkward[] = {0,
                                             -0.0,
                                             1,
                                             -1,
                                             0.5,
                                             1e-12,
                                             -1e-12,
                                             9.999999974752427e-07,
                                             1e300,
                                             -1e300,
                                             std::numeric_limits<double>::min(),
                                             std::numeric_limits<double>::denorm_min(),
                                             std::numeric_limits<double>::max(),
                                             std::numeric_limits<double>::infinity(),
                                             -std::numeric_limits<double>::infinity(),
                                             std::numeric_limits<double>::quiet_NaN()};
        const auto kind = take<std::uint8_t>();
        if (kind < 16) return awkward[kind];
        if (kind < 64) return take<std::int8_t>();
        if (kind < 192) return take<std::int16_t>() / 8.0;
        return take<double>();
    }
    // What is left, as text.
    std::string_view text() const { return {reinterpret_cast<const char*>(_data), _size}; }

  private:
    const std::uint8_t* _data;
    std::size_t _size;
};

inline void require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

} // namespace fuzz
