#include "minihost/suites/Misbehaviour.h"

#include "minihost/model/Document.h"

#include <algorithm>
#include <charconv>
#include <functional>
#include <stdexcept>

namespace minihost {

namespace {

// Of these misdeeds the scene's only ones do something here; the others spoil answers.
constexpr Misdeed table[] = {
    {"null-handles", AnswerKind::Handle, "gives a null handle"},
    {"negative-counts", AnswerKind::Count, "gives a count or an index of -1"},
    {"huge-counts", AnswerKind::Count, "gives a count or an index of 2147483647"},
    {"zero-sizes", AnswerKind::Size, "gives a width and a height of 0"},
    {"huge-sizes", AnswerKind::Size, "gives a width and a height of 2147483647"},
    {"negative-sizes", AnswerKind::Size, "gives a width and a height of -2147483648"},
    {"empty-names", AnswerKind::Name, "gives an empty name"},
    {"long-names", AnswerKind::Name, "gives a name that fills its buffer"},
    {"broken-names", AnswerKind::Name, "gives a name that is no UTF-8"},
    {"nan-values", AnswerKind::Value, "gives values that are no numbers"},
    {"infinite-values", AnswerKind::Value, "gives infinite values"},
    {"layer-removed", AnswerKind::Scene, "removes a layer before the call"},
    {"layer-added", AnswerKind::Scene, "adds a layer before the call"},
    {"layer-moved", AnswerKind::Scene, "moves the top layer to the bottom before the call"},
    {"cameras-removed", AnswerKind::Scene, "removes all cameras before the call"},
    {"selection-changed", AnswerKind::Scene, "selects something else before the call"},
};

// A scene that grows at every call would be all that is tried.
constexpr std::size_t most_layers = 1000;

// The layer that the plug-in is most likely at: the last one selected.
LayerId victim(const Scene& scene) {
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

// What was not selected; the other way round the next time.
void change_selection(Document& document) {
    const Selection& before = document.scene().selection();
    Selection after;
    for (const Layer* it : document.scene().layers())
        if (std::find(before.begin(), before.end(), it->id) == before.end())
            after.push_back(it->id);
    document.select(std::move(after));
}

void change(Document& document, const std::string& word) {
    const Scene& scene = document.scene();
    const LayerId layer = victim(scene);
    if (word == "cameras-removed") {
        remove_cameras(document);
    } else if (word == "selection-changed") {
        change_selection(document);
    } else if (!layer) {
        return;
    } else if (word == "layer-removed") {
        document.remove_layer(layer);
    } else if (word == "layer-added") {
        if (scene.layer_count() < most_layers) document.duplicate_layer(layer);
    } else {
        document.move_layer(scene.layer_at(0).id, scene.layer_count() - 1);
    }
}

} // namespace

std::span<const Misdeed> misdeeds() {
    return table;
}

PlannedMisdeed parse_misdeed(const std::string& text) {
    const std::size_t colon = text.find(':');
    const std::string word = text.substr(0, colon);
    PlannedMisdeed planned{};
    std::string all;
    for (const Misdeed& it : table) {
        if (word == it.word) planned.misdeed = &it;
        all += (all.empty() ? "" : ", ") + std::string(it.word);
    }
    if (!planned.misdeed) throw std::invalid_argument("\"" + text + "\" is none of " + all);
    if (colon == std::string::npos) return planned;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data() + colon + 1, end, planned.number);
    if (error != std::errc() || stop != end || planned.number < 1)
        throw std::invalid_argument("\"" + text + "\": answers are counted from 1");
    return planned;
}

Misbehaviour::Misbehaviour(const std::vector<PlannedMisdeed>& planned) {
    for (const PlannedMisdeed& it : planned) _planned[it.misdeed].insert(it.number);
}

std::int64_t Misbehaviour::answers(AnswerKind kind) const {
    const auto found = _answers.find(kind);
    return found == _answers.end() ? 0 : found->second;
}

const Misdeed* Misbehaviour::next(AnswerKind kind) {
    const std::int64_t number = ++_answers[kind];
    for (const auto& [misdeed, numbers] : _planned)
        if (misdeed->kind == kind && (numbers.contains(0) || numbers.contains(number)))
            return misdeed;
    return nullptr;
}

void Misbehaviour::before_call(Document& document) {
    if (const Misdeed* misdeed = next(AnswerKind::Scene)) change(document, misdeed->word);
}

} // namespace minihost
