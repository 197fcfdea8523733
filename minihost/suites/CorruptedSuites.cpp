#include "minihost/suites/CorruptedSuites.h"

#include "minihost/suites/Host.h"
#include "minihost/suites/SuiteFunctions.h"

#include <cstring>
#include <limits>
#include <string_view>

namespace minihost {

namespace {

using Word = std::string_view;

// What becomes of a result, by its type. Other arguments stay as they are.
template <typename Other>
void corrupt(Host&, Word, const Other&) {}

void corrupt(Host&, Word, AEGP_ItemH* item) {
    *item = nullptr;
}
void corrupt(Host&, Word, AEGP_CompH* comp) {
    *comp = nullptr;
}
void corrupt(Host&, Word, AEGP_LayerH* layer) {
    *layer = nullptr;
}
void corrupt(Host&, Word, AEGP_CollectionItem* item) {
    item->layerH = nullptr;
}
// Closed first, as the plug-in cannot release what it does not get.
void corrupt(Host& host, Word, AEGP_StreamRefH* stream) {
    host.handles.close(*stream);
    *stream = nullptr;
}
void corrupt(Host& host, Word, AEGP_CollectionH* collection) {
    host.handles.close(*collection);
    *collection = nullptr;
}

void corrupt(Host&, Word word, A_long* number) {
    if (word.starts_with("zero"))
        *number = 0;
    else if (word.starts_with("huge"))
        *number = std::numeric_limits<A_long>::max();
    else
        *number = word == "negative-sizes" ? std::numeric_limits<A_long>::min() : -1;
}
void corrupt(Host&, Word word, A_u_long* count) {
    *count = word == "huge-counts" ? std::numeric_limits<A_long>::max() : static_cast<A_u_long>(-1);
}

void corrupt(Host&, Word word, A_char* name) {
    if (!name) return;
    constexpr std::size_t max_length = AEGP_MAX_LAYER_NAME_SIZE - 1;
    if (word == "empty-names") {
        *name = 0;
    } else if (word == "long-names") {
        std::memset(name, 'm', max_length);
        name[max_length] = 0;
    } else {
        // Invalid bytes, a surrogate, a truncated character, printf conversions.
        std::strcpy(name, "\xff\xfe%s%n\xed\xa0\x80\xf0\x9f");
    }
}

double number(Word word) {
    using Limits = std::numeric_limits<double>;
    return word == "nan-values" ? Limits::quiet_NaN() : Limits::infinity();
}

// A function of a suite that corrupts its results.
template <MisbehaviourKind kind, auto function>
struct Corrupting;
template <MisbehaviourKind kind, typename Suite, typename... Types,
          A_Err (*Suite::*function)(Types...)>
struct Corrupting<kind, function> {
    static inline const Suite* original;
    static A_Err call(Types... arguments) {
        const A_Err error = (original->*function)(arguments...);
        Host* host = Host::current();
        if (error != 0 || !host) return error;
        if (const Misbehaviour* misbehaviour = host->misbehaviour_plan.next(kind))
            (corrupt(*host, misbehaviour->word, arguments), ...);
        return error;
    }
    static void install(Suite& suite) { suite.*function = call; }
};

// Writes only the numbers that the stream has.
template <>
struct Corrupting<MisbehaviourKind::Value, &AEGP_StreamSuite4::AEGP_GetLayerStreamValue> {
    static inline const AEGP_StreamSuite4* original;
    static A_Err call(AEGP_LayerH layer, AEGP_LayerStream stream, AEGP_LTimeMode mode,
                      const A_Time* time, A_Boolean pre_expression, AEGP_StreamVal* value) {
        const A_Err error =
            original->AEGP_GetLayerStreamValue(layer, stream, mode, time, pre_expression, value);
        Host* host = Host::current();
        if (error != 0 || !host) return error;
        const Misbehaviour* misbehaviour = host->misbehaviour_plan.next(MisbehaviourKind::Value);
        if (!misbehaviour) return error;
        const double bad = number(misbehaviour->word);
        if (stream == AEGP_LayerStream_ROTATE_X || stream == AEGP_LayerStream_ROTATE_Y ||
            stream == AEGP_LayerStream_ROTATE_Z)
            value->one_d = bad;
        else
            value->three_d = {bad, -bad, bad};
        return error;
    }
    static void install(AEGP_StreamSuite4& suite) { suite.AEGP_GetLayerStreamValue = call; }
};

template <typename Suite, typename... Functions>
const void* corrupted(const void* functions) {
    static const Suite& original = *static_cast<const Suite*>(functions);
    static const Suite made = [] {
        Suite copy = original;
        ((Functions::original = &original, Functions::install(copy)), ...);
        return copy;
    }();
    return &made;
}

} // namespace

const void* corrupted_functions(const void* functions) {
    constexpr auto Handle = MisbehaviourKind::Handle, Count = MisbehaviourKind::Count;
    if (functions == collection_suite) {
        using Suite = AEGP_CollectionSuite1;
        return corrupted<Suite, Corrupting<Handle, &Suite::AEGP_NewCollection>,
                         Corrupting<Count, &Suite::AEGP_GetCollectionNumItems>,
                         Corrupting<Handle, &Suite::AEGP_GetCollectionItemByIndex>>(functions);
    }
    if (functions == item_suite) {
        using Suite = AEGP_ItemSuite3;
        return corrupted<Suite, Corrupting<Handle, &Suite::AEGP_GetActiveItem>,
                         Corrupting<MisbehaviourKind::Size, &Suite::AEGP_GetItemDimensions>>(
            functions);
    }
    if (functions == comp_suite) {
        using Suite = AEGP_CompSuite4;
        return corrupted<Suite, Corrupting<Handle, &Suite::AEGP_GetCompFromItem>,
                         Corrupting<Handle, &Suite::AEGP_GetNewCollectionFromCompSelection>>(
            functions);
    }
    if (functions == layer_suite_5) {
        using Suite = AEGP_LayerSuite5;
        return corrupted<Suite, Corrupting<Count, &Suite::AEGP_GetCompNumLayers>,
                         Corrupting<Handle, &Suite::AEGP_GetCompLayerByIndex>,
                         Corrupting<Count, &Suite::AEGP_GetLayerIndex>,
                         Corrupting<Handle, &Suite::AEGP_GetLayerSourceItem>,
                         Corrupting<MisbehaviourKind::Name, &Suite::AEGP_GetLayerName>>(functions);
    }
    if (functions == layer_suite_10) {
        using Suite = AEGP_LayerSuite10;
        return corrupted<Suite, Corrupting<Handle, &Suite::AEGP_DuplicateLayer>>(functions);
    }
    if (functions == stream_suite) {
        using Suite = AEGP_StreamSuite4;
        return corrupted<Suite, Corrupting<Handle, &Suite::AEGP_GetNewLayerStream>,
                         Corrupting<MisbehaviourKind::Value, &Suite::AEGP_GetLayerStreamValue>>(
            functions);
    }
    if (functions == keyframe_suite) {
        using Suite = AEGP_KeyframeSuite1;
        return corrupted<Suite, Corrupting<Count, &Suite::AEGP_InsertKeyframe>>(functions);
    }
    return functions;
}

} // namespace minihost
