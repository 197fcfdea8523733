#include "minihost/suites/CorruptedSuites.h"

#include "minihost/suites/Host.h"
#include "minihost/suites/SuiteFunctions.h"

#include <cstring>
#include <limits>
#include <string_view>

namespace minihost {

namespace {

using Word = std::string_view;

// What an answer is made into, by its type. Whatever else a function is passed stays as it is.
template <typename Other>
void spoil(Host&, Word, const Other&) {}

template <typename Handle>
void make_null(Handle* handle) {
    *handle = nullptr;
}
// The plug-in cannot give back what it does not get.
template <typename Handle>
void close_and_make_null(Host& host, Handle* handle) {
    host.handles.close(*handle);
    *handle = nullptr;
}
void spoil(Host&, Word, AEGP_ItemH* item) {
    make_null(item);
}
void spoil(Host&, Word, AEGP_CompH* comp) {
    make_null(comp);
}
void spoil(Host&, Word, AEGP_LayerH* layer) {
    make_null(layer);
}
void spoil(Host&, Word, AEGP_CollectionItem* item) {
    item->layerH = nullptr;
}
void spoil(Host& host, Word, AEGP_StreamRefH* stream) {
    close_and_make_null(host, stream);
}
void spoil(Host& host, Word, AEGP_CollectionH* collection) {
    close_and_make_null(host, collection);
}

void spoil(Host&, Word word, A_long* number) {
    if (word.starts_with("zero"))
        *number = 0;
    else if (word.starts_with("huge"))
        *number = std::numeric_limits<A_long>::max();
    else
        *number = word == "negative-sizes" ? std::numeric_limits<A_long>::min() : -1;
}
void spoil(Host&, Word word, A_u_long* count) {
    *count = word == "huge-counts" ? std::numeric_limits<A_long>::max() : static_cast<A_u_long>(-1);
}

void spoil(Host&, Word word, A_char* name) {
    if (!name) return;
    constexpr std::size_t longest = AEGP_MAX_LAYER_NAME_SIZE - 1;
    if (word == "empty-names") {
        *name = 0;
    } else if (word == "long-names") {
        std::memset(name, 'm', longest);
        name[longest] = 0;
    } else {
        // Bytes that no text has, a character without its end, a surrogate, what printf looks for.
        std::strcpy(name, "\xff\xfe%s%n\xed\xa0\x80\xf0\x9f");
    }
}

double number(Word word) {
    using Limits = std::numeric_limits<double>;
    return word == "nan-values" ? Limits::quiet_NaN() : Limits::infinity();
}

// A function of a suite with its answer spoiled.
template <AnswerKind kind, auto function>
struct Spoiled;
template <AnswerKind kind, typename Functions, typename... Types,
          A_Err (*Functions::*function)(Types...)>
struct Spoiled<kind, function> {
    static inline const Functions* proper;
    static A_Err call(Types... arguments) {
        const A_Err error = (proper->*function)(arguments...);
        Host* host = Host::current();
        if (error != 0 || !host) return error;
        if (const Misdeed* misdeed = host->misbehaviour.next(kind))
            (spoil(*host, misdeed->word, arguments), ...);
        return error;
    }
};

// Only the numbers that the stream has.
template <>
struct Spoiled<AnswerKind::Value, &AEGP_StreamSuite4::AEGP_GetLayerStreamValue> {
    static inline const AEGP_StreamSuite4* proper;
    static A_Err call(AEGP_LayerH layer, AEGP_LayerStream stream, AEGP_LTimeMode mode,
                      const A_Time* time, A_Boolean pre_expression, AEGP_StreamVal* value) {
        const A_Err error =
            proper->AEGP_GetLayerStreamValue(layer, stream, mode, time, pre_expression, value);
        Host* host = Host::current();
        if (error != 0 || !host) return error;
        const Misdeed* misdeed = host->misbehaviour.next(AnswerKind::Value);
        if (!misdeed) return error;
        const double bad = number(misdeed->word);
        if (stream == AEGP_LayerStream_ROTATE_X || stream == AEGP_LayerStream_ROTATE_Y ||
            stream == AEGP_LayerStream_ROTATE_Z)
            value->one_d = bad;
        else
            value->three_d = {bad, -bad, bad};
        return error;
    }
};

template <AnswerKind kind, auto function, typename Functions>
void replace(Functions& copy, const Functions& proper) {
    Spoiled<kind, function>::proper = &proper;
    copy.*function = Spoiled<kind, function>::call;
}

void spoil_suite(AEGP_CollectionSuite1& copy, const AEGP_CollectionSuite1& proper) {
    using Functions = AEGP_CollectionSuite1;
    using enum AnswerKind;
    replace<Handle, &Functions::AEGP_NewCollection>(copy, proper);
    replace<Count, &Functions::AEGP_GetCollectionNumItems>(copy, proper);
    replace<Handle, &Functions::AEGP_GetCollectionItemByIndex>(copy, proper);
}
void spoil_suite(AEGP_ItemSuite3& copy, const AEGP_ItemSuite3& proper) {
    using enum AnswerKind;
    replace<Handle, &AEGP_ItemSuite3::AEGP_GetActiveItem>(copy, proper);
    replace<Size, &AEGP_ItemSuite3::AEGP_GetItemDimensions>(copy, proper);
}
void spoil_suite(AEGP_CompSuite4& copy, const AEGP_CompSuite4& proper) {
    using enum AnswerKind;
    replace<Handle, &AEGP_CompSuite4::AEGP_GetCompFromItem>(copy, proper);
    replace<Handle, &AEGP_CompSuite4::AEGP_GetNewCollectionFromCompSelection>(copy, proper);
}
void spoil_suite(AEGP_LayerSuite5& copy, const AEGP_LayerSuite5& proper) {
    using Functions = AEGP_LayerSuite5;
    using enum AnswerKind;
    replace<Count, &Functions::AEGP_GetCompNumLayers>(copy, proper);
    replace<Handle, &Functions::AEGP_GetCompLayerByIndex>(copy, proper);
    replace<Count, &Functions::AEGP_GetLayerIndex>(copy, proper);
    replace<Handle, &Functions::AEGP_GetLayerSourceItem>(copy, proper);
    replace<Name, &Functions::AEGP_GetLayerName>(copy, proper);
}
void spoil_suite(AEGP_LayerSuite10& copy, const AEGP_LayerSuite10& proper) {
    replace<AnswerKind::Handle, &AEGP_LayerSuite10::AEGP_DuplicateLayer>(copy, proper);
}
void spoil_suite(AEGP_StreamSuite4& copy, const AEGP_StreamSuite4& proper) {
    using enum AnswerKind;
    replace<Handle, &AEGP_StreamSuite4::AEGP_GetNewLayerStream>(copy, proper);
    replace<Value, &AEGP_StreamSuite4::AEGP_GetLayerStreamValue>(copy, proper);
}
void spoil_suite(AEGP_KeyframeSuite1& copy, const AEGP_KeyframeSuite1& proper) {
    replace<AnswerKind::Count, &AEGP_KeyframeSuite1::AEGP_InsertKeyframe>(copy, proper);
}

template <typename Functions>
const void* spoiled(const void* functions) {
    static const Functions& proper = *static_cast<const Functions*>(functions);
    static const Functions made = [] {
        Functions copy = proper;
        spoil_suite(copy, proper);
        return copy;
    }();
    return &made;
}

} // namespace

const void* corrupted_functions(const void* functions) {
    if (functions == collection_suite) return spoiled<AEGP_CollectionSuite1>(functions);
    if (functions == item_suite) return spoiled<AEGP_ItemSuite3>(functions);
    if (functions == comp_suite) return spoiled<AEGP_CompSuite4>(functions);
    if (functions == layer_suite_5) return spoiled<AEGP_LayerSuite5>(functions);
    if (functions == layer_suite_10) return spoiled<AEGP_LayerSuite10>(functions);
    if (functions == stream_suite) return spoiled<AEGP_StreamSuite4>(functions);
    if (functions == keyframe_suite) return spoiled<AEGP_KeyframeSuite1>(functions);
    return functions;
}

} // namespace minihost
