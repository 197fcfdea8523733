// What the plug-in's handles stand for. A handle is a number that is never used twice, not an
// address: whatever the plug-in hands back is looked up, never followed.

#pragma once

#include "minihost/model/Scene.h"
#include "minihost/suites/Faults.h"
#include "sdk/Host.h"

#include <cstdint>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <unordered_map>

namespace minihost {

// A call that the plug-in should not have made: it gets misuse_error and is told about.
class Misuse : public std::runtime_error {
  public:
    explicit Misuse(const std::string& what, FaultKind kind = FaultKind::BadArgument)
        : std::runtime_error(what), _kind(kind) {}
    FaultKind kind() const { return _kind; }

  private:
    FaultKind _kind;
};

struct StreamRef {
    LayerId layer;
    Stream stream;
};

// What an item handle stands for: the composition, the footage item that may be active, or the
// source of a layer.
struct ItemRef {
    enum class Kind { Composition, Footage, Source } kind;
    LayerId layer = 0;
};

class Handles {
  public:
    explicit Handles(const Scene& scene) : _scene(scene) {}

    // The same layer, item or composition has the same handle always, even after it was undone and
    // done again. A layer's handle is greater than that of every older layer.
    AEGP_LayerH of_layer(LayerId layer) const;
    AEGP_ItemH of_item(ItemRef item) const;
    AEGP_CompH of_composition() const;
    // New ones, to be closed again.
    AEGP_StreamRefH open_stream(StreamRef stream);
    AEGP_CollectionH open_collection(Selection items);
    AEGP_PanelH open_panel();

    // What a handle stands for. Each throws Misuse, with what is wrong in words, for a handle that
    // is null, of another kind, or stale.
    LayerId layer(AEGP_LayerH handle) const;
    ItemRef item(AEGP_ItemH handle) const;
    void require_composition(AEGP_CompH handle) const;
    StreamRef stream(AEGP_StreamRefH handle) const;
    Selection& collection(AEGP_CollectionH handle);
    void require_panel(AEGP_PanelH handle) const;

    void close(AEGP_StreamRefH handle);
    void close(AEGP_CollectionH handle);
    void close(AEGP_PanelH handle);
    void close_all();
    // Another scene is there: every handle of the old one is stale from now on; its streams have no
    // layer, its collections no items any more. `used` is the old scene's next_id().
    void begin_scene(LayerId used);

    // What has been opened and not closed, by number.
    const std::map<std::uint64_t, StreamRef>& open_streams() const { return _streams; }
    const std::map<std::uint64_t, Selection>& open_collections() const { return _collections; }

    // The handle's number among those of its kind, for the call log; 0 for none.
    static std::uint64_t number_of(const void* handle);

  private:
    const Scene& _scene;
    std::uint64_t _next = 1;
    std::uint64_t _base = 0; // below the numbers of this scene's layers and items
    std::map<std::uint64_t, StreamRef> _streams;
    std::map<std::uint64_t, Selection> _collections;
    std::set<std::uint64_t> _panels;
};

} // namespace minihost
