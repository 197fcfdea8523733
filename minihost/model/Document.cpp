#include "minihost/model/Document.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace minihost {

Document::Document(Scene scene) : _scene(std::move(scene)) {
    _loaded_names = std::exchange(_scene.undo_names, {});
}

void Document::begin_group(std::string name) {
    if (_open_groups++ == 0)
        _open = UndoStep{std::move(name), {}, _scene.shared_selection(), nullptr, 0};
}

bool Document::end_group() {
    if (_open_groups == 0) return false;
    if (--_open_groups > 0) return true;
    if (!_open.changes.empty()) {
        _open.after = _scene.shared_selection();
        _open.number = _next_step++;
        _done.push_back(std::move(_open));
    }
    _open = {};
    return true;
}

void Document::apply(Change change, const char* step_name) {
    ++_revision;
    _undone.clear();
    begin_group(step_name);
    std::visit([this](auto& any) { swap_with_scene(any); }, change);
    _open.changes.push_back(std::move(change));
    end_group();
}

void Document::swap_with_scene(PresenceChange& change) {
    if (change.absent) {
        change.id = _scene.insert(std::move(change.absent), change.index);
    } else {
        change.index = _scene.index_of(change.id);
        change.absent = _scene.remove(change.id);
    }
}

void Document::swap_with_scene(IndexChange& change) {
    const std::size_t now = _scene.index_of(change.id);
    _scene.move(change.id, change.index);
    change.index = now;
}

void Document::swap_with_scene(NameChange& change) {
    std::string now = _scene.find(change.id)->name;
    _scene.rename(change.id, std::move(change.name));
    change.name = std::move(now);
}

void Document::swap_with_scene(ValueChange& change) {
    Layer& layer = *_scene.find(change.id);
    const Vec3 now = static_value(layer, change.stream);
    set_static_value(layer, change.stream, change.value);
    change.value = now;
}

void Document::swap_with_scene(KeyChange& change) {
    Keyframes& keys = *_scene.find(change.id)->keys_of(change.stream);
    const auto at = keys.begin() + static_cast<std::ptrdiff_t>(change.index);
    // A change never moves a key, so an equal time means that the key exists.
    const bool exists_now = at != keys.end() && at->time == change.key.time;
    if (exists_now && change.exists) {
        std::swap(*at, change.key);
    } else if (change.exists) {
        keys.insert(at, change.key);
    } else {
        change.key = *at;
        keys.erase(at);
    }
    change.exists = exists_now;
}

LayerId Document::add_layer(Layer layer, std::size_t index) {
    layer.id = 0;
    apply(PresenceChange{0, index, std::make_unique<Layer>(std::move(layer))}, "Add Layer");
    return _scene.layer_at(index).id;
}

void Document::remove_layer(LayerId id) {
    begin_group("Remove Layer");
    apply(PresenceChange{id, 0, nullptr}, "Remove Layer");
    const Selection& selected = _scene.selection();
    if (std::find(selected.begin(), selected.end(), id) != selected.end()) {
        Selection rest = selected;
        std::erase(rest, id);
        _scene.select(std::move(rest));
    }
    end_group();
}

void Document::move_layer(LayerId id, std::size_t index) {
    apply(IndexChange{id, index}, "Move Layer");
}

void Document::rename_layer(LayerId id, std::string name) {
    apply(NameChange{id, std::move(name)}, "Rename Layer");
}

LayerId Document::duplicate_layer(LayerId id) {
    auto copy = std::make_unique<Layer>(*_scene.find(id));
    copy->id = 0;
    copy->name = _scene.name_for_duplicate_of(id);
    const std::size_t index = _scene.index_of(id);
    apply(PresenceChange{0, index, std::move(copy)}, "Duplicate");
    return _scene.layer_at(index).id;
}

void Document::duplicate_selection() {
    std::unordered_set<LayerId> once(_scene.selection().begin(), _scene.selection().end());
    once.erase(0);
    std::vector<LayerId> originals(once.begin(), once.end());
    std::sort(originals.begin(), originals.end(),
              [this](LayerId a, LayerId b) { return _scene.index_of(a) < _scene.index_of(b); });
    if (originals.empty()) return;
    begin_group("Duplicate");
    Selection duplicates;
    for (const LayerId id : originals) duplicates.push_back(duplicate_layer(id));
    _scene.select(std::move(duplicates));
    end_group();
}

void Document::set_value(LayerId id, Stream stream, const Vec3& value, std::int32_t tick) {
    const Keyframes* keys = std::as_const(_scene).find(id)->keys_of(stream);
    if (!keys || keys->empty()) {
        apply(ValueChange{id, stream, value}, "Set Value");
        return;
    }
    const auto [index, exists] = find_key(*keys, tick);
    const double time = exists ? (*keys)[index].time : static_cast<double>(tick) / ticks_per_second;
    apply(KeyChange{id, stream, index, true, {time, value}}, "Set Value");
}

std::size_t Document::insert_key(LayerId id, Stream stream, std::int32_t tick) {
    const Layer& layer = *_scene.find(id);
    const auto [index, exists] = find_key(*layer.keys_of(stream), tick);
    if (exists) return index;
    const double time = static_cast<double>(tick) / ticks_per_second;
    apply(KeyChange{id, stream, index, true, {time, value_of(layer, stream, time)}},
          "Insert Keyframe");
    return index;
}

bool Document::undo() {
    if (_open_groups > 0 || _done.empty()) return false;
    ++_revision;
    UndoStep step = std::move(_done.back());
    _done.pop_back();
    for (auto change = step.changes.rbegin(); change != step.changes.rend(); ++change)
        std::visit([this](auto& any) { swap_with_scene(any); }, *change);
    _scene.select(step.before);
    _undone.push_back(std::move(step));
    return true;
}

bool Document::redo() {
    if (_open_groups > 0 || _undone.empty()) return false;
    ++_revision;
    UndoStep step = std::move(_undone.back());
    _undone.pop_back();
    for (Change& change : step.changes)
        std::visit([this](auto& any) { swap_with_scene(any); }, change);
    _scene.select(step.after);
    _done.push_back(std::move(step));
    return true;
}

std::uint64_t Document::state() const {
    if (!_open.changes.empty()) return ~_revision; // differs from the number of every step
    return _done.empty() ? 0 : _done.back().number;
}

std::vector<std::string> Document::undo_names() const {
    std::vector<std::string> names = _loaded_names;
    for (const UndoStep& step : _done) names.push_back(step.name);
    if (!_open.changes.empty()) names.push_back(_open.name);
    return names;
}

std::vector<std::string> Document::redo_names() const {
    std::vector<std::string> names;
    for (auto step = _undone.rbegin(); step != _undone.rend(); ++step) names.push_back(step->name);
    return names;
}

} // namespace minihost
