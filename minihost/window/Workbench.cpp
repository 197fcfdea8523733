#include "minihost/window/Workbench.h"

#include "minihost/actions/Actions.h"

#include <cstdio>
#include <filesystem>

namespace minihost {

namespace {

std::string count_of(std::size_t count, const char* what) {
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

} // namespace

Workbench::Workbench(Session& session, std::string path)
    : _session(session), _path(std::move(path)), _saved_state(session.host().document.state()) {}

std::string Workbench::file_name() const {
    return std::filesystem::path(_path).filename().string();
}

std::string Workbench::title() const {
    return file_name() + (has_changes() ? " (edited)" : "");
}

void Workbench::open(const std::string& path) {
    _session.open_scene(path);
    _path = path;
    _saved_state = document().state();
    ++_scenes;
}

void Workbench::save(const std::string& path) {
    _session.save_scene(path);
    _path = path;
    _saved_state = document().state();
}

void Workbench::export_picture(const std::string& path) {
    _session.save_preview(path);
}

void Workbench::perform(const char* action) {
    run_action(_session, parse_action({action}, "window"));
}

std::string Workbench::step_title(const char* what, const std::string* name) {
    return name ? std::string(what) + " " + *name : what;
}

bool Workbench::is_selected(LayerId layer) const {
    const auto selection = scene().shared_selection();
    if (selection != _known) {
        _selected = {selection->begin(), selection->end()};
        _known = selection;
    }
    return _selected.contains(layer);
}

void Workbench::select_only(LayerId layer) {
    select({layer});
}

void Workbench::toggle(LayerId layer) {
    Selection selection = scene().selection();
    if (std::erase(selection, layer) == 0) selection.push_back(layer);
    _session.host().document.select(std::move(selection));
}

void Workbench::deselect() {
    select({});
}

void Workbench::select(const std::vector<LayerId>& layers, const Selection& kept) {
    Selection selection = kept;
    std::unordered_set<LayerId> there(kept.begin(), kept.end());
    for (const LayerId layer : layers)
        if (there.insert(layer).second) selection.push_back(layer);
    if (selection != scene().selection()) _session.host().document.select(std::move(selection));
}

void Workbench::select_rows(std::size_t first, std::size_t last, const Selection& kept) {
    if (first > last) std::swap(first, last);
    std::vector<LayerId> layers;
    for (std::size_t row = first; row <= last && row < scene().layer_count(); ++row)
        layers.push_back(scene().layer_at(row).id);
    select(layers, kept);
}

std::string Workbench::status() const {
    const Composition& composition = scene().composition;
    const bool others = is_selected(0); // what is selected and no layer
    const std::size_t selected = _selected.size() - (others ? 1 : 0);
    char time[64];
    std::snprintf(time, sizeof time, "%.2f s", composition.time);
    return composition.name + "   " + std::to_string(composition.width) + " × " +
           std::to_string(composition.height) + "   " + time + "   " +
           count_of(scene().layer_count(), "layer") + ", " + std::to_string(selected) + " selected";
}

Workbench::Look Workbench::look() const {
    // No scene has so many changes that the next one's revisions could be its own.
    return {document().revision() + (_scenes << 40), scene().shared_selection(), view};
}

} // namespace minihost
