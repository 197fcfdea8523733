// Two scenes that have to be equal in everything that a file or an undo step keeps.

#pragma once

#include "fuzz/Bytes.h"
#include "minihost/model/Scene.h"

namespace fuzz {

inline void require_same(const minihost::Layer& a, const minihost::Layer& b) {
    require(a.name == b.name, "same name");
    require(a.kind == b.kind && a.three_d == b.three_d, "same kind of layer");
    require(a.color == b.color, "same colour");
    require(a.size == b.size, "same size");
    require(a.start == b.start, "same start");
    require(a.transform == b.transform, "same transform");
    require(a.keys == b.keys, "same keyframes");
}

inline void require_same(const minihost::Scene& a, const minihost::Scene& b) {
    require(a.composition == b.composition, "same composition");
    require(a.active == b.active, "same active item");
    require(a.layer_count() == b.layer_count(), "as many layers");
    for (std::size_t i = 0; i < a.layer_count(); ++i) require_same(a.layer_at(i), b.layer_at(i));
    require(a.selection().size() == b.selection().size(), "as much selected");
    for (std::size_t i = 0; i < a.selection().size(); ++i) {
        const minihost::LayerId one = a.selection()[i], other = b.selection()[i];
        require((one == 0) == (other == 0), "same things that are no layers");
        if (one) require(a.index_of(one) == b.index_of(other), "same selection");
    }
}

} // namespace fuzz
