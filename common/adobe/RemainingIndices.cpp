#include "common/adobe/RemainingIndices.h"

#include <bit>

RemainingIndices::RemainingIndices(std::size_t count)
    : _tree(count + 1, 0), _size(count), _top(std::bit_floor(count)) {
    for (std::size_t i = 1; i <= count; ++i) _tree[i] = i & (~i + 1);
}

std::size_t RemainingIndices::take(std::size_t place) {
    // Walks down to the last node before which there are at most `place` remaining indices; the one
    // that is looked for lies in every node that was too large to be passed.
    std::size_t index = 0;
    for (std::size_t step = _top; step > 0; step >>= 1) {
        const std::size_t node = index + step;
        if (node >= _tree.size()) continue;
        if (_tree[node] <= place) {
            place -= _tree[node];
            index = node;
        } else {
            --_tree[node];
        }
    }
    --_size;
    return index;
}
