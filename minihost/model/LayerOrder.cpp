#include "minihost/model/LayerOrder.h"

#include <algorithm>

namespace minihost {

namespace {

// Xorshift. It only balances the tree.
std::uint32_t next_random(std::uint64_t& state) {
    state ^= state << 13;
    state ^= state >> 7;
    state ^= state << 17;
    return static_cast<std::uint32_t>(state >> 32);
}

} // namespace

void LayerOrder::update(Link node) {
    _nodes[node].count =
        static_cast<std::uint32_t>(1 + count(_nodes[node].left) + count(_nodes[node].right));
}

void LayerOrder::replace_child(Link parent, Link child, Link replacement) {
    if (!parent)
        _root = replacement;
    else if (_nodes[parent].left == child)
        _nodes[parent].left = replacement;
    else
        _nodes[parent].right = replacement;
    if (replacement) _nodes[replacement].parent = parent;
}

// Makes `node` the parent of its parent and keeps the order.
void LayerOrder::rotate_up(Link node) {
    const Link parent = _nodes[node].parent;
    const Link above = _nodes[parent].parent;
    const bool is_left = _nodes[parent].left == node;
    const Link moved = is_left ? _nodes[node].right : _nodes[node].left;
    (is_left ? _nodes[parent].left : _nodes[parent].right) = moved;
    if (moved) _nodes[moved].parent = parent;
    (is_left ? _nodes[node].right : _nodes[node].left) = parent;
    replace_child(above, parent, node);
    _nodes[parent].parent = node;
    update(parent);
    update(node);
}

LayerId LayerOrder::at(std::size_t index) const {
    Link node = _root;
    for (;;) {
        const std::size_t left = count(_nodes[node].left);
        if (index == left) return node;
        if (index < left) {
            node = _nodes[node].left;
        } else {
            index -= left + 1;
            node = _nodes[node].right;
        }
    }
}

std::size_t LayerOrder::index_of(LayerId id) const {
    Link node = static_cast<Link>(id);
    std::size_t index = count(_nodes[node].left);
    while (const Link parent = _nodes[node].parent) {
        if (_nodes[parent].right == node) index += count(_nodes[parent].left) + 1;
        node = parent;
    }
    return index;
}

void LayerOrder::insert(LayerId id, std::size_t index) {
    const Link node = static_cast<Link>(id);
    if (node >= _nodes.size())
        _nodes.resize(std::max<std::size_t>(node + 1, _nodes.size() * 3 / 2));
    _nodes[node] = Node{0, 0, 0, 1, next_random(_random), true};
    Link parent = 0;
    bool go_left = false;
    for (Link at = _root; at;) {
        ++_nodes[at].count;
        parent = at;
        const std::size_t left = count(_nodes[at].left);
        go_left = index <= left;
        if (!go_left) index -= left + 1;
        at = go_left ? _nodes[at].left : _nodes[at].right;
    }
    _nodes[node].parent = parent;
    if (!parent)
        _root = node;
    else
        (go_left ? _nodes[parent].left : _nodes[parent].right) = node;
    while (_nodes[node].parent && _nodes[_nodes[node].parent].priority < _nodes[node].priority)
        rotate_up(node);
}

void LayerOrder::remove(LayerId id) {
    const Link node = static_cast<Link>(id);
    for (;;) {
        const Link left = _nodes[node].left;
        const Link right = _nodes[node].right;
        if (!left || !right) {
            const Link parent = _nodes[node].parent;
            replace_child(parent, node, left ? left : right);
            for (Link above = parent; above; above = _nodes[above].parent) --_nodes[above].count;
            break;
        }
        rotate_up(_nodes[left].priority > _nodes[right].priority ? left : right);
    }
    _nodes[node] = Node{};
}

std::vector<LayerId> LayerOrder::ids() const {
    std::vector<LayerId> all;
    all.reserve(size());
    std::vector<Link> open;
    for (Link node = _root; node || !open.empty();) {
        for (; node; node = _nodes[node].left) open.push_back(node);
        node = open.back();
        open.pop_back();
        all.push_back(node);
        node = _nodes[node].right;
    }
    return all;
}

} // namespace minihost
