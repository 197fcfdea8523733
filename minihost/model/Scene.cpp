#include "minihost/model/Scene.h"

namespace minihost {

std::string_view name_of(ActiveItem item) {
    switch (item) {
    case ActiveItem::Composition:
        return "composition";
    case ActiveItem::Footage:
        return "footage";
    case ActiveItem::None:
        break;
    }
    return "none";
}

std::optional<ActiveItem> active_item(std::string_view name) {
    for (const auto item : {ActiveItem::Composition, ActiveItem::Footage, ActiveItem::None})
        if (name_of(item) == name) return item;
    return std::nullopt;
}

std::vector<const Layer*> Scene::layers() const {
    std::vector<const Layer*> all;
    all.reserve(layer_count());
    for (const LayerId id : _order.ids()) all.push_back(_layers[id].get());
    return all;
}

void Scene::select(Selection selection) {
    _selection = std::make_shared<const Selection>(std::move(selection));
}

LayerId Scene::insert(std::unique_ptr<Layer> layer, std::size_t index) {
    if (layer->id == 0) {
        layer->id = _layers.size();
        _layers.emplace_back();
    }
    const LayerId id = layer->id;
    _names.add(layer->name);
    _layers[id] = std::move(layer);
    _order.insert(id, index);
    return id;
}

std::unique_ptr<Layer> Scene::remove(LayerId id) {
    _order.remove(id);
    _names.remove(_layers[id]->name);
    return std::move(_layers[id]);
}

void Scene::move(LayerId id, std::size_t index) {
    _order.remove(id);
    _order.insert(id, index);
}

void Scene::rename(LayerId id, std::string name) {
    _names.remove(_layers[id]->name);
    _names.add(name);
    _layers[id]->name = std::move(name);
}

} // namespace minihost
