// A composition with its layers and what is selected, as values in memory. Reading is for everyone;
// the editing here records nothing: Document does, on top of it.

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

// "composition", "footage" or "none", and back; nothing for another word.
std::string_view name_of(ActiveItem item);
std::optional<ActiveItem> active_item(std::string_view name);

// What is selected, in the collection's order; 0 stands for an item that is no layer.
using Selection = std::vector<LayerId>;

class Scene {
  public:
    Composition composition;
    ActiveItem active = ActiveItem::Composition;
    std::vector<std::string> undo_names; // as a file told them; a Document has its own

    std::size_t layer_count() const { return _order.size(); }
    // The layer at an index below layer_count(), 0 being the top one. O(log n).
    const Layer& layer_at(std::size_t index) const { return *_layers[_order.at(index)]; }
    // All layers, top first. O(n).
    std::vector<const Layer*> layers() const;
    // Greater than that of every layer that was ever in the scene.
    LayerId next_id() const { return _layers.size(); }
    // Null when there is no such layer (any more).
    const Layer* find(LayerId id) const {
        return _order.contains(id) ? _layers[id].get() : nullptr;
    }
    Layer* find(LayerId id) { return _order.contains(id) ? _layers[id].get() : nullptr; }
    // Of a layer that is there. O(log n).
    std::size_t index_of(LayerId id) const { return _order.index_of(id); }

    const Selection& selection() const { return *_selection; }
    // The same, to be kept without a copy.
    std::shared_ptr<const Selection> shared_selection() const { return _selection; }
    // Of ids that are there, or 0.
    void select(Selection selection);
    void select(std::shared_ptr<const Selection> selection) { _selection = std::move(selection); }

    // Puts a layer in; one without an id gets the next. `index` is at most layer_count().
    LayerId insert(std::unique_ptr<Layer> layer, std::size_t index);
    // Takes a layer out that is there. The selection is not looked at.
    std::unique_ptr<Layer> remove(LayerId id);
    // Moves a layer so that it has this index afterwards, which is below layer_count().
    void move(LayerId id, std::size_t index);
    void rename(LayerId id, std::string name);
    std::string name_for_duplicate_of(LayerId id) {
        return _names.for_duplicate_of(_layers[id]->name);
    }

  private:
    std::vector<std::unique_ptr<Layer>> _layers{1}; // by id; null where there is none
    LayerOrder _order;
    LayerNames _names;
    std::shared_ptr<const Selection> _selection = std::make_shared<const Selection>();
};

} // namespace minihost
