#include "minihost/window/SceneEditor.h"

#include "minihost/actions/Actions.h"
#include "minihost/model/Numbers.h"

#include <cstdio>
#include <filesystem>

namespace minihost {

SceneEditor::SceneEditor(Session& session, std::string path)
    : _session(session), _path(std::move(path)), _saved_state(session.host().document.state()) {}

std::string SceneEditor::file_name() const {
    return std::filesystem::path(_path).filename().string();
}

std::string SceneEditor::title() const {
    return file_name() + (has_changes() ? " (edited)" : "");
}

void SceneEditor::open(const std::string& path) {
    _session.open_scene(path);
    _path = path;
    _saved_state = document().state();
    ++_opened_scenes;
}

void SceneEditor::save(const std::string& path) {
    _session.save_scene(path);
    _path = path;
    _saved_state = document().state();
}

void SceneEditor::export_picture(const std::string& path) {
    _session.save_preview(path);
}

void SceneEditor::perform(const char* action) {
    run_action(_session, parse_action({action}, "window"));
}

std::string SceneEditor::step_title(const char* what, const std::string* name) {
    return name ? std::string(what) + " " + *name : what;
}

bool SceneEditor::is_selected(LayerId layer) const {
    const auto selection = scene().shared_selection();
    if (selection != _selected_of) {
        _selected = {selection->begin(), selection->end()};
        _selected_of = selection;
    }
    return _selected.contains(layer);
}

void SceneEditor::toggle(LayerId layer) {
    Selection selection = scene().selection();
    if (std::erase(selection, layer) == 0) selection.push_back(layer);
    _session.host().document.select(std::move(selection));
}

void SceneEditor::select(const std::vector<LayerId>& layers, const Selection& kept) {
    Selection selection = kept;
    std::unordered_set<LayerId> selected(kept.begin(), kept.end());
    for (const LayerId layer : layers)
        if (selected.insert(layer).second) selection.push_back(layer);
    if (selection != scene().selection()) _session.host().document.select(std::move(selection));
}

void SceneEditor::select_rows(std::size_t first, std::size_t last, const Selection& kept) {
    if (first > last) std::swap(first, last);
    std::vector<LayerId> layers;
    for (std::size_t row = first; row <= last && row < scene().layer_count(); ++row)
        layers.push_back(scene().layer_at(row).id);
    select(layers, kept);
}

std::string SceneEditor::status() const {
    const Composition& composition = scene().composition;
    const bool others = is_selected(0); // selected items that are no layers
    const std::size_t selected = _selected.size() - (others ? 1 : 0);
    char time[64];
    std::snprintf(time, sizeof time, "%.2f s", composition.time);
    return composition.name + "   " + std::to_string(composition.width) + " × " +
           std::to_string(composition.height) + "   " + time + "   " +
           counted(scene().layer_count(), "layer") + ", " + std::to_string(selected) + " selected";
}

SceneEditor::DisplayState SceneEditor::display_state() const {
    // Each scene's revisions start anew; none reaches 2^40.
    return {document().revision() + (_opened_scenes << 40), scene().shared_selection(), viewpoint};
}

} // namespace minihost
