// Two numbers that are added and multiplied at once: what the matrix products are written in, since
// compilers find it by themselves only now and then. Each lane rounds as a number by itself would.

#pragma once

#include <cstring>

namespace math {

template <typename T>
struct PairOf {
    typedef T type __attribute__((vector_size(2 * sizeof(T))));
};
template <typename T>
using Pair = typename PairOf<T>::type;

template <typename T>
inline Pair<T> load_pair(const T* from) {
    Pair<T> pair;
    std::memcpy(&pair, from, sizeof pair);
    return pair;
}

template <typename T>
inline void store_pair(T* to, Pair<T> pair) {
    std::memcpy(to, &pair, sizeof pair);
}

// The same number in both lanes.
template <typename T>
inline Pair<T> both(T number) {
    return Pair<T>{number, number};
}

} // namespace math
