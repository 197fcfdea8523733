// A scene with undo. A step costs memory for what it changes, never a copy of the scene.

#pragma once

#include "minihost/model/Scene.h"

#include <deque>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace minihost {

// A change outside a group is a step; the changes in a group are one step together. Setting an
// equal value is a change. Selection, current time and active item have no steps, but undo and redo
// restore the selection. Layers passed in must exist, indices must be in range.
class Document {
  public:
    explicit Document(Scene scene);

    const Scene& scene() const { return _scene; }
    // For the current time, which has no undo step.
    Composition& composition() {
        ++_revision;
        return _scene.composition;
    }
    void set_active(ActiveItem active) { _scene.active = active; }
    void select(Selection selection) { _scene.select(std::move(selection)); }

    // Groups nest; the outermost names the step. end_group() returns false when none is open.
    void begin_group(std::string name);
    bool end_group();
    int open_groups() const { return _open_groups; }

    LayerId add_layer(Layer layer, std::size_t index);
    // Also deselects it.
    void remove_layer(LayerId id);
    void move_layer(LayerId id, std::size_t index);
    void rename_layer(LayerId id, std::string name);
    // Returns the duplicate's id. It is right above the original, and the selection stays.
    LayerId duplicate_layer(LayerId id);
    // Duplicates every selected layer once, from the top, and selects the duplicates instead.
    void duplicate_selection();

    // Sets the static value of a stream without keys, otherwise the key at `tick`, inserted if
    // necessary.
    void set_value(LayerId id, Stream stream, const Vec3& value, std::int32_t tick);
    // Inserts a key with the current value unless there is one; returns its index. The stream must
    // be one that can have keys.
    std::size_t insert_key(LayerId id, Stream stream, std::int32_t tick);

    // False when there is no step, or a group is open.
    bool undo();
    bool redo();
    // Rises with everything that may change how the scene looks, except the selection.
    std::uint64_t revision() const { return _revision; }
    // Identifies the scene's changes: undo and redo return to the same number. Unique while a group
    // with changes is open.
    std::uint64_t state() const;

    // Of the next step to undo or redo; null when there is none.
    const std::string* undo_name() const { return _done.empty() ? nullptr : &_done.back().name; }
    const std::string* redo_name() const {
        return _undone.empty() ? nullptr : &_undone.back().name;
    }
    // Oldest first; for redo the next step first.
    std::vector<std::string> undo_names() const;
    std::vector<std::string> redo_names() const;

  private:
    // A change holds the other state, which undo and redo swap with the scene.
    struct PresenceChange {
        LayerId id;
        std::size_t index;
        std::unique_ptr<Layer> absent; // null while the layer is in the scene
    };
    struct IndexChange {
        LayerId id;
        std::size_t index;
    };
    struct NameChange {
        LayerId id;
        std::string name;
    };
    struct ValueChange {
        LayerId id;
        Stream stream;
        Vec3 value;
    };
    struct KeyChange {
        LayerId id;
        Stream stream;
        std::size_t index;
        bool exists; // in the other state
        Keyframe key;
    };
    using Change = std::variant<PresenceChange, IndexChange, NameChange, ValueChange, KeyChange>;
    struct UndoStep {
        std::string name;
        std::deque<Change> changes; // grows without moving
        std::shared_ptr<const Selection> before, after;
        std::uint64_t number = 0; // from 1, never reused
    };

    void swap_with_scene(PresenceChange& change);
    void swap_with_scene(IndexChange& change);
    void swap_with_scene(NameChange& change);
    void swap_with_scene(ValueChange& change);
    void swap_with_scene(KeyChange& change);
    void apply(Change change, const char* step_name);

    Scene _scene;
    std::vector<std::string> _loaded_names; // of the steps in the file
    std::deque<UndoStep> _done, _undone;
    UndoStep _open;
    int _open_groups = 0;
    std::uint64_t _revision = 0, _next_step = 1;
};

} // namespace minihost
