// The suites for collections, items, and the composition with its selection.

#include "minihost/suites/ServeCall.h"
#include "minihost/suites/SuiteFunctions.h"

namespace minihost {

namespace {

CallName collection_call(const char* call) {
    return {kAEGPCollectionSuite, kAEGPCollectionSuiteVersion, call};
}
CallName item_call(const char* call) {
    return {kAEGPItemSuite, kAEGPItemSuiteVersion, call};
}
CallName comp_call(const char* call) {
    return {kAEGPCompSuite, kAEGPCompSuiteVersion, call};
}

A_Err NewCollection(AEGP_PluginID, AEGP_CollectionH* collection) {
    return serve_call(collection_call("NewCollection"),
                      [&](Host& host) { require(collection) = host.handles.open_collection({}); });
}

A_Err DisposeCollection(AEGP_CollectionH collection) {
    return serve_call(
        collection_call("DisposeCollection"), [&](CallArguments& it) { it.collection(collection); },
        [&](Host& host) { host.handles.close(collection); });
}

A_Err GetCollectionNumItems(AEGP_CollectionH collection, A_u_long* count) {
    return serve_call(
        collection_call("GetCollectionNumItems"),
        [&](CallArguments& it) { it.collection(collection); },
        [&](Host& host) {
            A_u_long& result = require(count);
            result = static_cast<A_u_long>(host.handles.collection(collection).size());
        });
}

A_Err GetCollectionItemByIndex(AEGP_CollectionH collection, A_u_long index,
                               AEGP_CollectionItem* item) {
    return serve_call(
        collection_call("GetCollectionItemByIndex"),
        [&](CallArguments& it) { it.collection(collection).number("index", index); },
        [&](Host& host) -> A_Err {
            const Selection& items = host.handles.collection(collection);
            AEGP_CollectionItem& result = require(item);
            if (index >= items.size()) return bad_argument_error;
            const LayerId layer = items[index];
            result = layer ? AEGP_CollectionItem{AEGP_CollectionItemType_LAYER,
                                                 host.handles.of_layer(layer)}
                           : AEGP_CollectionItem{AEGP_CollectionItemType_NONE, nullptr};
            return 0;
        });
}

A_Err CollectionPushBack(AEGP_CollectionH collection, const AEGP_CollectionItem* item) {
    return serve_call(
        collection_call("CollectionPushBack"),
        [&](CallArguments& it) {
            it.collection(collection);
            if (item && item->type == AEGP_CollectionItemType_LAYER) it.layer(item->layerH);
        },
        [&](Host& host) {
            Selection& items = host.handles.collection(collection);
            const bool is_layer = require(item).type == AEGP_CollectionItemType_LAYER;
            items.push_back(is_layer ? host.handles.layer(item->layerH) : 0);
        });
}

A_Err GetActiveItem(AEGP_ItemH* item) {
    return serve_call(item_call("GetActiveItem"), [&](Host& host) {
        AEGP_ItemH& result = require(item);
        switch (host.document.scene().active) {
        case ActiveItem::Composition:
            result = host.handles.of_item({ItemRef::Kind::Composition});
            break;
        case ActiveItem::Footage:
            result = host.handles.of_item({ItemRef::Kind::Footage});
            break;
        case ActiveItem::None:
            result = nullptr;
            break;
        }
    });
}

A_Err GetItemType(AEGP_ItemH item, AEGP_ItemType* type) {
    return serve_call(
        item_call("GetItemType"), [&](CallArguments& it) { it.item(item); },
        [&](Host& host) {
            const bool is_comp = host.handles.item(item).kind == ItemRef::Kind::Composition;
            require(type) = is_comp ? AEGP_ItemType_COMP : AEGP_ItemType_FOOTAGE;
        });
}

A_Err GetItemDimensions(AEGP_ItemH item, A_long* width, A_long* height) {
    return serve_call(
        item_call("GetItemDimensions"), [&](CallArguments& it) { it.item(item); },
        [&](Host& host) {
            const Scene& scene = host.document.scene();
            const ItemRef ref = host.handles.item(item);
            // The footage item that may be active is of the composition's size.
            Size size{scene.composition.width, scene.composition.height};
            if (ref.kind == ItemRef::Kind::Source) size = scene.find(ref.layer)->size;
            A_long &wide = require(width), &high = require(height);
            wide = size.width;
            high = size.height;
        });
}

A_Err GetCompFromItem(AEGP_ItemH item, AEGP_CompH* comp) {
    return serve_call(
        comp_call("GetCompFromItem"), [&](CallArguments& it) { it.item(item); },
        [&](Host& host) {
            const bool is_comp = host.handles.item(item).kind == ItemRef::Kind::Composition;
            require(comp) = is_comp ? host.handles.of_composition() : nullptr;
        });
}

A_Err GetNewCollectionFromCompSelection(AEGP_PluginID, AEGP_CompH comp,
                                        AEGP_CollectionH* collection) {
    return serve_call(
        comp_call("GetNewCollectionFromCompSelection"),
        [&](CallArguments& it) { it.composition(comp); },
        [&](Host& host) {
            host.handles.require_composition(comp);
            AEGP_CollectionH& result = require(collection);
            result = host.handles.open_collection(host.document.scene().selection());
        });
}

A_Err SetSelection(AEGP_CompH comp, AEGP_CollectionH collection) {
    return serve_call(
        comp_call("SetSelection"),
        [&](CallArguments& it) { it.composition(comp).collection(collection); },
        [&](Host& host) {
            host.handles.require_composition(comp);
            const Selection& items = host.handles.collection(collection);
            for (const LayerId layer : items)
                if (layer && !host.document.scene().find(layer))
                    throw Misuse("a collection with a layer that is no more",
                                 ViolationKind::StaleHandle);
            host.document.select(items);
        });
}

constexpr AEGP_CollectionSuite1 collections{NewCollection, DisposeCollection, GetCollectionNumItems,
                                            GetCollectionItemByIndex, CollectionPushBack};
constexpr AEGP_ItemSuite3 items{GetActiveItem, GetItemType, GetItemDimensions};
constexpr AEGP_CompSuite4 comps{GetCompFromItem, GetNewCollectionFromCompSelection, SetSelection};

} // namespace

const void* const collection_suite = &collections;
const void* const item_suite = &items;
const void* const comp_suite = &comps;

} // namespace minihost
