// The order of the layers, top first: a list whose members are found by index, and whose indices
// are found by member, in O(log n). A treap with subtree sizes, its nodes addressed by the members'
// numbers.

#pragma once

#include "minihost/model/Layer.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace minihost {

class LayerOrder {
  public:
    std::size_t size() const { return count(_root); }
    bool contains(LayerId layer) const { return layer < _nodes.size() && _nodes[layer].present; }

    // The id at an index below size().
    LayerId at(std::size_t index) const;
    // The index of an id that the order contains.
    std::size_t index_of(LayerId id) const;

    // Puts an id that is not contained, and not 0, so that it has that index (at most size()).
    // Memory goes with the greatest id.
    void insert(LayerId id, std::size_t index);
    // Takes an id out that is contained.
    void remove(LayerId id);

    // All ids, top first. O(n).
    std::vector<LayerId> ids() const;

  private:
    using Link = std::uint32_t; // an id, or 0 for none
    struct Node {
        Link left = 0, right = 0, parent = 0;
        std::uint32_t count = 0;
        std::uint32_t priority = 0;
        bool present = false;
    };

    std::size_t count(Link node) const { return node ? _nodes[node].count : 0; }
    void update(Link node);
    void rotate_up(Link node);
    void replace_child(Link parent, Link child, Link by);

    std::vector<Node> _nodes{1};
    Link _root = 0;
    std::uint64_t _random = 0x9E3779B97F4A7C15u;
};

} // namespace minihost
