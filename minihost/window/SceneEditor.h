// What the window's commands do, without the window: the open file and its unsaved changes, what a
// click selects, what the menus and the status line say. The scene is changed only through the
// actions of the command line, so that both do the same.

#pragma once

#include "minihost/actions/Session.h"
#include "minihost/window/Viewpoint.h"

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_set>
#include <vector>

namespace minihost {

class SceneEditor {
  public:
    // The session's scene was read from `path`.
    SceneEditor(Session& session, std::string path);

    Session& session() { return _session; }
    const Document& document() const { return _session.host().document; }
    const Scene& scene() const { return document().scene(); }
    Viewpoint viewpoint;

    // The file.
    const std::string& path() const { return _path; }
    std::string file_name() const;
    bool has_changes() const { return document().state() != _saved_state; }
    // "cards.json (edited)".
    std::string title() const;
    // Each throws ActionError, and changes nothing then.
    void open(const std::string& path);
    void save(const std::string& path);
    void export_picture(const std::string& path);

    // An action without arguments, by its name. Throws ActionError.
    void perform(const char* action);
    // "Undo Tamborel"; "Undo" if there is nothing to undo.
    std::string undo_title() const { return step_title("Undo", document().undo_name()); }
    std::string redo_title() const { return step_title("Redo", document().redo_name()); }
    bool can_undo() const { return document().undo_name() != nullptr; }
    bool can_redo() const { return document().redo_name() != nullptr; }

    // The selection.
    bool is_selected(LayerId layer) const;
    // Adds or removes one layer.
    void toggle(LayerId layer);
    // Selects `kept` and these layers.
    void select(const std::vector<LayerId>& layers, const Selection& kept = {});
    void select_rows(std::size_t first, std::size_t last, const Selection& kept = {});

    std::string status() const;

    // Differs whenever the window may look different, apart from the panel.
    struct DisplayState {
        std::uint64_t revision = 0;
        std::shared_ptr<const Selection> selection;
        Viewpoint viewpoint;
        bool operator==(const DisplayState&) const = default;
    };
    DisplayState display_state() const;

  private:
    static std::string step_title(const char* what, const std::string* name);

    Session& _session;
    std::string _path;
    std::uint64_t _saved_state;
    std::uint64_t _opened_scenes = 0;
    // The selection as a set, and of which selection it is one.
    mutable std::unordered_set<LayerId> _selected;
    mutable std::shared_ptr<const Selection> _selected_of;
};

} // namespace minihost
