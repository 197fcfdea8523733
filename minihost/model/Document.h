// A scene that is edited: every change is kept as a step that can be undone and done again. A step
// costs what it changes, never a copy of the scene.

#pragma once

#include "minihost/model/Scene.h"

#include <deque>
#include <memory>
#include <string>
#include <variant>
#include <vector>

namespace minihost {

// Changes outside a group are a step each, those inside one make one step together; a group without
// changes leaves none. Setting a value is a change even when it is the same. What is selected, the
// current time and the active item are no changes, but undo and redo bring the selection back.
// Layers that are named here must be there, indices must be in range.
class Document {
  public:
    explicit Document(Scene scene);

    const Scene& scene() const { return _scene; }
    // For what is no change: the current time, the active item.
    Composition& composition() {
        ++_revision;
        return _scene.composition;
    }
    void set_active(ActiveItem active) { _scene.active = active; }
    void select(Selection selection) { _scene.select(std::move(selection)); }

    // Groups nest; the outermost names the step. end_group() is false when none is open.
    void begin_group(std::string name);
    bool end_group();
    int open_groups() const { return _open_groups; }

    LayerId add_layer(Layer layer, std::size_t index);
    // A removed layer leaves the selection too.
    void remove_layer(LayerId id);
    void move_layer(LayerId id, std::size_t index);
    void rename_layer(LayerId id, std::string name);
    // Right above the original; the duplicate's id. The selection stays.
    LayerId duplicate_layer(LayerId id);
    // Duplicates every selected layer (from the top, each once) and selects the duplicates instead.
    void duplicate_selection();

    // Replaces the value of a stream without keys; with keys it sets the one at `tick`, made if it
    // is not there.
    void set_value(LayerId id, Stream stream, const Vec3& value, std::int32_t tick);
    // Makes a key with the value that the stream has there, unless there is one. The key's index.
    // The stream is one that can have keys.
    std::size_t insert_key(LayerId id, Stream stream, std::int32_t tick);

    // One step; false when there is none, or a group is open.
    bool undo();
    bool redo();
    // Another number after everything that may change how the scene looks, but for the selection.
    std::uint64_t revision() const { return _revision; }
    // Which changes have been made: the same number again when they are undone or done again.
    // Changes of a group that is still open have one of their own.
    std::uint64_t state() const;

    // Of the step that undo() or redo() would take; null when there is none.
    const std::string* undo_name() const { return _done.empty() ? nullptr : &_done.back().name; }
    const std::string* redo_name() const {
        return _undone.empty() ? nullptr : &_undone.back().name;
    }
    // Oldest first; for redo the next one first.
    std::vector<std::string> undo_names() const;
    std::vector<std::string> redo_names() const;

  private:
    // Every change holds the other state: undoing and redoing swap it with the scene's.
    struct Presence {
        LayerId id;
        std::size_t index;
        std::unique_ptr<Layer> absent; // null while the layer is in the scene
    };
    struct Place {
        LayerId id;
        std::size_t index;
    };
    struct Name {
        LayerId id;
        std::string name;
    };
    struct Value {
        LayerId id;
        Stream stream;
        Vec3 value;
    };
    struct Key {
        LayerId id;
        Stream stream;
        std::size_t index;
        bool exists; // in the other state
        Keyframe key;
    };
    using Change = std::variant<Presence, Place, Name, Value, Key>;
    struct Step {
        std::string name;
        std::deque<Change> changes; // of a large step never moved when it grows
        std::shared_ptr<const Selection> before, after;
        std::uint64_t number = 0; // from 1, never used twice
    };

    void swap_with_scene(Presence& change);
    void swap_with_scene(Place& change);
    void swap_with_scene(Name& change);
    void swap_with_scene(Value& change);
    void swap_with_scene(Key& change);
    void make(Change change, const char* step_name);

    Scene _scene;
    std::vector<std::string> _names_before; // of the steps that the file told of
    std::deque<Step> _done, _undone;
    Step _open;
    int _open_groups = 0;
    std::uint64_t _revision = 0, _next_step = 1;
};

} // namespace minihost
