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
template <MisbehaviourKind kind, typename Functions, typename... Types,
          A_Err (*Functions::*function)(Types...)>
struct Corrupting<kind, function> {
    static inline const Functions* original;
    static A_Err call(Types... arguments) {
        const A_Err error = (original->*function)(arguments...);
        Host* host = Host::current();
        if (error != 0 || !host) return error;
        if (const Misbehaviour* misbehaviour = host->misbehaviour_plan.next(kind))
            (corrupt(*host, misbehaviour->word, arguments), ...);
        return error;
    }
};

// Only the numbers that the stream has are written.
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
};

template <MisbehaviourKind kind, auto function, typename Functions>
void replace(Functions& copy, const Functions& original) {
    Corrupting<kind, function>::original = &original;
    copy.*function = Corrupting<kind, function>::call;
}

void corrupt_suite(AEGP_CollectionSuite1& copy, const AEGP_CollectionSuite1& original) {
    using Functions = AEGP_CollectionSuite1;
    using enum MisbehaviourKind;
    replace<Handle, &Functions::AEGP_NewCollection>(copy, original);
    replace<Count, &Functions::AEGP_GetCollectionNumItems>(copy, original);
    replace<Handle, &Functions::AEGP_GetCollectionItemByIndex>(copy, original);
}
void corrupt_suite(AEGP_ItemSuite3& copy, const AEGP_ItemSuite3& original) {
    using enum MisbehaviourKind;
    replace<Handle, &AEGP_ItemSuite3::AEGP_GetActiveItem>(copy, original);
    replace<Size, &AEGP_ItemSuite3::AEGP_GetItemDimensions>(copy, original);
}
void corrupt_suite(AEGP_CompSuite4& copy, const AEGP_CompSuite4& original) {
    using enum MisbehaviourKind;
    replace<Handle, &AEGP_CompSuite4::AEGP_GetCompFromItem>(copy, original);
    replace<Handle, &AEGP_CompSuite4::AEGP_GetNewCollectionFromCompSelection>(copy, original);
}
void corrupt_suite(AEGP_LayerSuite5& copy, const AEGP_LayerSuite5& original) {
    using Functions = AEGP_LayerSuite5;
    using enum MisbehaviourKind;
    replace<Count, &Functions::AEGP_GetCompNumLayers>(copy, original);
    replace<Handle, &Functions::AEGP_GetCompLayerByIndex>(copy, original);
    replace<Count, &Functions::AEGP_GetLayerIndex>(copy, original);
    replace<Handle, &Functions::AEGP_GetLayerSourceItem>(copy, original);
    replace<Name, &Functions::AEGP_GetLayerName>(copy, original);
}
void corrupt_suite(AEGP_LayerSuite10& copy, const AEGP_LayerSuite10& original) {
    replace<MisbehaviourKind::Handle, &AEGP_LayerSuite10::AEGP_DuplicateLayer>(copy, original);
}
void corrupt_suite(AEGP_StreamSuite4& copy, const AEGP_StreamSuite4& original) {
    using enum MisbehaviourKind;
    replace<Handle, &AEGP_StreamSuite4::AEGP_GetNewLayerStream>(copy, original);
    replace<Value, &AEGP_StreamSuite4::AEGP_GetLayerStreamValue>(copy, original);
}
void corrupt_suite(AEGP_KeyframeSuite1& copy, const AEGP_KeyframeSuite1& original) {
    replace<MisbehaviourKind::Count, &AEGP_KeyframeSuite1::AEGP_InsertKeyframe>(copy, original);
}

template <typename Functions>
const void* corrupted(const void* functions) {
    static const Functions& original = *static_cast<const Functions*>(functions);
    static const Functions made = [] {
        Functions copy = original;
        corrupt_suite(copy, original);
        return copy;
    }();
    return &made;
}

} // namespace

const void* corrupted_functions(const void* functions) {
    if (functions == collection_suite) return corrupted<AEGP_CollectionSuite1>(functions);
    if (functions == item_suite) return corrupted<AEGP_ItemSuite3>(functions);
    if (functions == comp_suite) return corrupted<AEGP_CompSuite4>(functions);
    if (functions == layer_suite_5) return corrupted<AEGP_LayerSuite5>(functions);
    if (functions == layer_suite_10) return corrupted<AEGP_LayerSuite10>(functions);
    if (functions == stream_suite) return corrupted<AEGP_StreamSuite4>(functions);
    if (functions == keyframe_suite) return corrupted<AEGP_KeyframeSuite1>(functions);
    return functions;
}

} // namespace minihost
