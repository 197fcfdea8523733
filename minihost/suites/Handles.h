// The plug-in's handles. A handle is a number that is never reused, not an address: it is looked
// up, never dereferenced.

#pragma once

#include "minihost/model/Scene.h"
#include "minihost/suites/Violation.h"
#include "sdk/Host.h"

#include <cstdint>
#include <map>
#include <set>

#include <stdexcept>
#include <string>
#include <unordered_map>

namespace minihost {

// A wrong call of the plug-in. The call returns misuse_error, and the user gets a message.
class Misuse : public std::runtime_error {
  public:
    explicit Misuse(const std::string& what, ViolationKind kind = ViolationKind::BadArgument)
        : std::runtime_error(what), _kind(kind) {}
    ViolationKind kind() const { return _kind; }

  private:
    ViolationKind _kind;
};

struct StreamRef {
    LayerId layer;
    Stream stream;
};

// An item: the composition, the footage item that may be active, or the source of a layer.
struct ItemRef {
    enum class Kind { Composition, Footage, Source } kind;
    LayerId layer = 0;
};

class Handles {
  public:
    explicit Handles(const Scene& scene) : _scene(scene) {}

    // A layer, item or composition keeps its handle, also over undo and redo. A layer's handle is
    // greater than those of all older layers.
    AEGP_LayerH of_layer(LayerId layer) const;
    AEGP_ItemH of_item(ItemRef item) const;
    AEGP_CompH of_composition() const;
    // New handles, which have to be closed.
    AEGP_StreamRefH open_stream(StreamRef stream);
    AEGP_CollectionH open_collection(Selection items);
    AEGP_PanelH open_panel();

    // Look a handle up. Each throws Misuse for one that is null, of another kind, or stale.
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
    // Makes every handle of the old scene stale, as another one was opened: open streams lose their
    // layer, open collections their items. `used` is the old scene's next_id().
    void begin_scene(LayerId used);

    // By number.
    const std::map<std::uint64_t, StreamRef>& open_streams() const { return _streams; }
    const std::map<std::uint64_t, Selection>& open_collections() const { return _collections; }

    // The handle's number among those of its kind, for the call log; 0 for null.
    static std::uint64_t number_of(const void* handle);

  private:
    const Scene& _scene;
    std::uint64_t _next = 1;
    std::uint64_t _base = 0; // less than the numbers of this scene's layers and items
    std::map<std::uint64_t, StreamRef> _streams;
    std::map<std::uint64_t, Selection> _collections;
    std::set<std::uint64_t> _panels;
};

} // namespace minihost
