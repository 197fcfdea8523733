#include "minihost/suites/MisbehaviourPlan.h"

#include "minihost/model/Document.h"
#include "minihost/model/Numbers.h"

#include <algorithm>
#include <stdexcept>

namespace minihost {

namespace {

// Those of the kind Scene happen in this file, the others in CorruptedSuites.
constexpr Misbehaviour table[] = {
    {"null-handles", MisbehaviourKind::Handle, "gives a null handle"},
    {"negative-counts", MisbehaviourKind::Count, "gives a count or an index of -1"},
    {"huge-counts", MisbehaviourKind::Count, "gives a count or an index of 2147483647"},
    {"zero-sizes", MisbehaviourKind::Size, "gives a width and a height of 0"},
    {"huge-sizes", MisbehaviourKind::Size, "gives a width and a height of 2147483647"},
    {"negative-sizes", MisbehaviourKind::Size, "gives a width and a height of -2147483648"},
    {"empty-names", MisbehaviourKind::Name, "gives an empty name"},
    {"long-names", MisbehaviourKind::Name, "gives a name that fills its buffer"},
    {"broken-names", MisbehaviourKind::Name, "gives a name that is no UTF-8"},
    {"nan-values", MisbehaviourKind::Value, "gives values that are no numbers"},
    {"infinite-values", MisbehaviourKind::Value, "gives infinite values"},
    {"layer-removed", MisbehaviourKind::Scene, "removes a layer before the call"},
    {"layer-added", MisbehaviourKind::Scene, "adds a layer before the call"},
    {"layer-moved", MisbehaviourKind::Scene, "moves the top layer to the bottom before the call"},
    {"cameras-removed", MisbehaviourKind::Scene, "removes all cameras before the call"},
    {"selection-changed", MisbehaviourKind::Scene, "selects something else before the call"},
};

// Ends the growth of a scene that gets a layer at every call.
constexpr std::size_t max_layers = 1000;

// The layer that the plug-in most likely works on: the last one selected.
LayerId likely_current_layer(const Scene& scene) {
    for (std::size_t i = scene.selection().size(); i-- > 0;)
        if (const LayerId layer = scene.selection()[i]; layer && scene.find(layer)) return layer;
    return scene.layer_count() > 0 ? scene.layer_at(0).id : 0;
}

void remove_cameras(Document& document) {
    std::vector<LayerId> cameras;
    for (const Layer* it : document.scene().layers())
        if (it->kind == LayerKind::Camera) cameras.push_back(it->id);
    for (const LayerId id : cameras) document.remove_layer(id);
}

void invert_selection(Document& document) {
    const Selection& before = document.scene().selection();
    Selection after;
    for (const Layer* it : document.scene().layers())
        if (std::find(before.begin(), before.end(), it->id) == before.end())
            after.push_back(it->id);
    document.select(std::move(after));
}

void change_scene(Document& document, const std::string& word) {
    const Scene& scene = document.scene();
    const LayerId layer = likely_current_layer(scene);
    if (word == "cameras-removed") {
        remove_cameras(document);
    } else if (word == "selection-changed") {
        invert_selection(document);
    } else if (!layer) {
        return;
    } else if (word == "layer-removed") {
        document.remove_layer(layer);
    } else if (word == "layer-added") {
        if (scene.layer_count() < max_layers) document.duplicate_layer(layer);
    } else {
        document.move_layer(scene.layer_at(0).id, scene.layer_count() - 1);
    }
}

} // namespace

std::span<const Misbehaviour> misbehaviours() {
    return table;
}

PlannedMisbehaviour parse_misbehaviour(const std::string& text) {
    const std::size_t colon = text.find(':');
    const std::string word = text.substr(0, colon);
    PlannedMisbehaviour planned{};
    std::string all;
    for (const Misbehaviour& it : table) {
        if (word == it.word) planned.misbehaviour = &it;
        all += (all.empty() ? "" : ", ") + std::string(it.word);
    }
    if (!planned.misbehaviour) throw std::invalid_argument("\"" + text + "\" is none of " + all);
    if (colon == std::string::npos) return planned;
    const auto number = parse_number<std::int64_t>(text.substr(colon + 1));
    if (!number || *number < 1)
        throw std::invalid_argument("\"" + text + "\": answers are counted from 1");
    planned.number = *number;
    return planned;
}

MisbehaviourPlan::MisbehaviourPlan(const std::vector<PlannedMisbehaviour>& planned) {
    for (const PlannedMisbehaviour& it : planned) _planned[it.misbehaviour].insert(it.number);
}

std::int64_t MisbehaviourPlan::count(MisbehaviourKind kind) const {
    const auto found = _counts.find(kind);
    return found == _counts.end() ? 0 : found->second;
}

const Misbehaviour* MisbehaviourPlan::next(MisbehaviourKind kind) {
    const std::int64_t number = ++_counts[kind];
    for (const auto& [misbehaviour, numbers] : _planned)
        if (misbehaviour->kind == kind && (numbers.contains(0) || numbers.contains(number)))
            return misbehaviour;
    return nullptr;
}

void MisbehaviourPlan::before_call(Document& document) {
    if (const Misbehaviour* misbehaviour = next(MisbehaviourKind::Scene))
        change_scene(document, misbehaviour->word);
}

} // namespace minihost
