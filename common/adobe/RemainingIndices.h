// The indices from 0 to n - 1 of which one after the other is taken away: what remains is counted
// through in order, as in a list from which items are erased, but without moving any.

#pragma once

#include <cstddef>
#include <vector>

class RemainingIndices {
  public:
    // `count` indices remain at first. Linear in time and space.
    explicit RemainingIndices(std::size_t count);

    std::size_t size() const { return _size; }

    // Takes away the index that stands at `place` (below size()) among those that remain, and
    // returns it. Logarithmic in time.
    std::size_t take(std::size_t place);

  private:
    // A Fenwick tree (P. Fenwick, 1994) over the count of what remains in each range: node i, from
    // 1, covers as many indices up to i - 1 as its lowest set bit says.
    std::vector<std::size_t> _tree;
    std::size_t _size;
    std::size_t _top; // the greatest power of two that is not above the count
};
