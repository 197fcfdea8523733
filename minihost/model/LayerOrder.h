// The order of the layers, top first, with access by index and by layer in O(log n): a treap with
// subtree sizes, whose nodes are addressed by layer ids.

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

    // `index` must be less than size().
    LayerId at(std::size_t index) const;
    // The order must contain the id.
    std::size_t index_of(LayerId id) const;

    // The order must not contain the id, which is not 0; `index` is at most size(). Memory depends
    // on the greatest id.
    void insert(LayerId id, std::size_t index);
    // The order must contain the id.
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
    void replace_child(Link parent, Link child, Link replacement);

    std::vector<Node> _nodes{1};
    Link _root = 0;
    std::uint64_t _random = 0x9E3779B97F4A7C15u;
};

} // namespace minihost
