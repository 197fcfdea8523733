// A composition with its layers and selection. Changes made here leave no undo step; Document adds
// undo.

#pragma once

#include "minihost/model/Layer.h"
#include "minihost/model/LayerNames.h"
#include "minihost/model/LayerOrder.h"

#include <memory>
#include <string>
#include <vector>

namespace minihost {

struct Composition {
    std::string name = "Comp 1";
    int width = 1920; // pixels
    int height = 1080;
    double frame_rate = 25; // frames a second
    double duration = 10;   // seconds
    double time = 0;        // the current time, seconds

    Vec3 middle() const { return {width / 2.0, height / 2.0, 0}; }
    bool operator==(const Composition&) const = default;
};

enum class ActiveItem { Composition, Footage, None };

// "composition", "footage" or "none", and back; nothing for another name.
std::string_view name_of(ActiveItem item);
std::optional<ActiveItem> active_item(std::string_view name);

// In the order of selecting; 0 is an item that is not a layer.
using Selection = std::vector<LayerId>;

class Scene {
  public:
    Composition composition;
    ActiveItem active = ActiveItem::Composition;
    std::vector<std::string> undo_names; // from a file

    std::size_t layer_count() const { return _order.size(); }
    // `index` must be less than layer_count(); 0 is the top layer. O(log n).
    const Layer& layer_at(std::size_t index) const { return *_layers[_order.at(index)]; }
    // All layers, top first. O(n).
    std::vector<const Layer*> layers() const;
    // Greater than any id so far.
    LayerId next_id() const { return _layers.size(); }
    // Null for a layer that does not exist.
    const Layer* find(LayerId id) const {
        return _order.contains(id) ? _layers[id].get() : nullptr;
    }
    Layer* find(LayerId id) { return _order.contains(id) ? _layers[id].get() : nullptr; }
    // The layer must exist. O(log n).
    std::size_t index_of(LayerId id) const { return _order.index_of(id); }

    const Selection& selection() const { return *_selection; }
    // The same without a copy.
    std::shared_ptr<const Selection> shared_selection() const { return _selection; }
    // The layers must exist.
    void select(Selection selection);
    void select(std::shared_ptr<const Selection> selection) { _selection = std::move(selection); }

    // A layer without an id gets the next one. `index` is at most layer_count().
    LayerId insert(std::unique_ptr<Layer> layer, std::size_t index);
    // The layer must exist. Does not change the selection.
    std::unique_ptr<Layer> remove(LayerId id);
    // `index`, less than layer_count(), is that after the move.
    void move(LayerId id, std::size_t index);
    void rename(LayerId id, std::string name);
    std::string name_for_duplicate_of(LayerId id) {
        return _names.for_duplicate_of(_layers[id]->name);
    }

  private:
    std::vector<std::unique_ptr<Layer>> _layers{1}; // by id; null for a removed layer
    LayerOrder _order;
    LayerNames _names;
    std::shared_ptr<const Selection> _selection = std::make_shared<const Selection>();
};

} // namespace minihost
