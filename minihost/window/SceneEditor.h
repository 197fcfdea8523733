// What the window's commands do, without the window: the file that is open, whether there is
// anything to save, what a click selects, what the menus and the status line say. All that changes
// the scene goes through the actions of the command line, so that both do the same.

#pragma once

#include "minihost/actions/Session.h"
#include "minihost/window/Viewpoint.h"

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_set>
#include <vector>

namespace minihost {

class Workbench {
  public:
    // The session's scene was read from `path`.
    Workbench(Session& session, std::string path);

    Session& session() { return _session; }
    const Document& document() const { return _session.host().document; }
    const Scene& scene() const { return document().scene(); }
    ViewPoint view;

    // The file.
    const std::string& path() const { return _path; }
    std::string file_name() const;
    bool has_changes() const { return document().state() != _saved_state; }
    // "cards.json (edited)".
    std::string title() const;
    // Each throws ActionError, with everything as it was.
    void open(const std::string& path);
    void save(const std::string& path);
    void export_picture(const std::string& path);

    // An action without arguments, by its name. Throws ActionError.
    void perform(const char* action);
    // "Undo Tamborel"; "Undo" when there is nothing to be undone.
    std::string undo_title() const { return step_title("Undo", document().undo_name()); }
    std::string redo_title() const { return step_title("Redo", document().redo_name()); }
    bool can_undo() const { return document().undo_name() != nullptr; }
    bool can_redo() const { return document().redo_name() != nullptr; }

    // Selecting. A toggle leaves what else is selected; nothing is done where nothing changes.
    bool is_selected(LayerId layer) const;
    void select_only(LayerId layer);
    void toggle(LayerId layer);
    void deselect();
    // These layers, and with `kept` what was selected at some time before.
    void select(const std::vector<LayerId>& layers, const Selection& kept = {});
    void select_rows(std::size_t first, std::size_t last, const Selection& kept = {});

    std::string status() const;

    // Another one whenever the window may look different, but for the panel.
    struct Look {
        std::uint64_t revision = 0;
        std::shared_ptr<const Selection> selection;
        ViewPoint view;
        bool operator==(const Look&) const = default;
    };
    Look look() const;

  private:
    static std::string step_title(const char* what, const std::string* name);

    Session& _session;
    std::string _path;
    std::uint64_t _saved_state;
    std::uint64_t _scenes = 0; // opened so far
    mutable std::shared_ptr<const Selection> _known;
    mutable std::unordered_set<LayerId> _selected; // what is in it
};

} // namespace minihost
