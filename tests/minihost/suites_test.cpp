// What a plug-in is served: every suite over a scene, its handles, and what misuse gets.

#include "minihost/model/SceneReader.h"
#include "minihost/suites/Host.h"
#include "minihost/suites/SuiteTable.h"

#include <cmath>
#include <cstring>
#include <gmock/gmock.h>
#include <limits>
#include <stdexcept>

namespace minihost {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::UnorderedElementsAre;

const char* const scene_text = R"({"format": "minihost scene 1",
  "composition": {"name": "C", "width": 400, "height": 300, "time": 1.0009},
  "layers": [
    {"name": "Card", "kind": "solid", "three_d": true, "source": {"width": 20, "height": 12}, "start": 0.5,
     "transform": {"position": [1, 2, 3], "rotation": [10, 20, 30]},
     "keyframes": {"scale": [{"time": 0, "value": [0, 0, 0]}, {"time": 2, "value": [200, 100, 50]}]}},
    {"name": "Flat", "kind": "footage", "source": {"width": 5, "height": 6}},
    {"name": "Title", "kind": "text", "three_d": true},
    {"name": "Form", "kind": "shape"},
    {"name": "Camera", "kind": "camera", "transform": {"point_of_interest": [7, 8, 9]}},
    {"name": "Light", "kind": "light"}],
  "selection": [2, "other", 0, 0]})";

// A host whose suites are called as if from a plug-in's hook.
class Suites : public testing::Test {
  protected:
    explicit Suites(HostOptions options = {})
        : host(
              parse_scene(scene_text, "test"), std::move(options),
              [this](const std::string& line) { messages.push_back(line); }, blind_panels()) {}

    void inside(const std::function<void()>& body) { host.visit(body); }
    template <typename Table>
    const Table& suite(const char* name, A_long version) {
        const void* table = nullptr;
        EXPECT_EQ(host.basic_suite()->AcquireSuite(name, version, &table), 0) << name;
        return *static_cast<const Table*>(table);
    }
    const AEGP_LayerSuite5& layers() { return suite<AEGP_LayerSuite5>(kAEGPLayerSuite, 5); }
    const AEGP_StreamSuite4& streams() { return suite<AEGP_StreamSuite4>(kAEGPStreamSuite, 4); }
    const AEGP_CollectionSuite1& collections() {
        return suite<AEGP_CollectionSuite1>(kAEGPCollectionSuite, 1);
    }
    AEGP_CompH comp() {
        AEGP_ItemH item = nullptr;
        AEGP_CompH comp = nullptr;
        EXPECT_EQ(suite<AEGP_ItemSuite3>(kAEGPItemSuite, 3).AEGP_GetActiveItem(&item), 0);
        EXPECT_EQ(suite<AEGP_CompSuite4>(kAEGPCompSuite, 4).AEGP_GetCompFromItem(item, &comp), 0);
        return comp;
    }
    AEGP_LayerH layer(A_long index) {
        AEGP_LayerH layer = nullptr;
        EXPECT_EQ(layers().AEGP_GetCompLayerByIndex(comp(), index, &layer), 0);
        return layer;
    }

    std::vector<std::string> messages;
    Host host;
};

TEST_F(Suites, TellWhatTheLayersAre) {
    inside([&] {
        struct Case {
            A_long index;
            AEGP_ObjectType type;
            bool is_3d, has_source;
            A_long width;
        };
        for (const Case& it : {Case{0, 0, true, true, 20},
                               {1, 0, false, true, 5},
                               {2, 3, true, false, 0},
                               {3, 4, false, false, 0},
                               {4, 2, true, false, 0},
                               {5, 1, true, false, 0}}) {
            const AEGP_LayerH handle = layer(it.index);
            AEGP_ObjectType type = -1;
            A_Boolean is_3d = 9;
            AEGP_ItemH source = nullptr;
            A_long index = -1;
            EXPECT_EQ(layers().AEGP_GetLayerObjectType(handle, &type), 0);
            EXPECT_EQ(layers().AEGP_IsLayer3D(handle, &is_3d), 0);
            EXPECT_EQ(layers().AEGP_GetLayerSourceItem(handle, &source), 0);
            EXPECT_EQ(layers().AEGP_GetLayerIndex(handle, &index), 0);
            EXPECT_EQ(type, it.type) << it.index;
            EXPECT_EQ(is_3d, it.is_3d) << it.index;
            EXPECT_EQ(source != nullptr, it.has_source) << it.index;
            EXPECT_EQ(index, it.index);
            if (!source) continue;
            A_long width = 0, height = 0;
            suite<AEGP_ItemSuite3>(kAEGPItemSuite, 3)
                .AEGP_GetItemDimensions(source, &width, &height);
            EXPECT_EQ(width, it.width);
        }
        EXPECT_LT(layer(0), layer(5)) << "handles rise with the order of the scene";
        A_Time now{}, start{};
        layers().AEGP_GetLayerCurrentTime(layer(0), AEGP_LTimeMode_CompTime, &now);
        layers().AEGP_GetLayerOffset(layer(0), &start);
        EXPECT_EQ(now.value, 601) << "1.0009 s are nearest to 601 of 600";
        EXPECT_EQ(now.scale, 600u);
        EXPECT_EQ(start.value, 300);
    });
    EXPECT_THAT(messages, IsEmpty());
}

TEST_F(Suites, CutNamesBeforeTheCharacterThatDoesNotFit) {
    const LayerId id = host.document.scene().layer_at(0).id;
    inside([&] {
        A_char name[AEGP_MAX_LAYER_NAME_SIZE + 1], source[AEGP_MAX_LAYER_NAME_SIZE];
        for (const auto& [given, expected] : std::vector<std::pair<std::string, std::string>>{
                 {std::string(255, 'a'), std::string(255, 'a')},
                 {std::string(300, 'a'), std::string(255, 'a')},
                 {std::string(254, 'a') + "ä", std::string(254, 'a')},
                 {std::string(253, 'a') + "ä", std::string(253, 'a') + "ä"},
                 {std::string(253, 'a') + "€", std::string(253, 'a')}}) {
            host.document.rename_layer(id, given);
            std::memset(name, '?', sizeof name);
            EXPECT_EQ(layers().AEGP_GetLayerName(layer(0), name, source), 0);
            EXPECT_EQ(name, expected);
            EXPECT_EQ(name[AEGP_MAX_LAYER_NAME_SIZE], '?');
        }
        EXPECT_EQ(layers().AEGP_GetLayerName(layer(0), nullptr, nullptr), 0);
        EXPECT_EQ(layers().AEGP_GetLayerName(layer(2), nullptr, source), 0);
        EXPECT_STREQ(source, "");
    });
}

TEST_F(Suites, ReadStreamsAndWriteOnlyTheNumbersThatThereAre) {
    inside([&] {
        const A_Time one_second{30, 30};
        const auto read = [&](A_long index, AEGP_LayerStream stream) {
            AEGP_StreamVal value;
            value.four_d = {-1, -1, -1, -1};
            const A_Err error = streams().AEGP_GetLayerStreamValue(
                layer(index), stream, AEGP_LTimeMode_CompTime, &one_second, 0, &value);
            return std::vector<double>{static_cast<double>(error), value.four_d.x, value.four_d.y,
                                       value.four_d.z, value.four_d.w};
        };
        EXPECT_THAT(read(0, AEGP_LayerStream_POSITION), ElementsAre(0, 1, 2, 3, -1));
        EXPECT_THAT(read(0, AEGP_LayerStream_SCALE), ElementsAre(0, 100, 50, 25, -1));
        EXPECT_THAT(read(0, AEGP_LayerStream_ROTATE_X), ElementsAre(0, 10, -1, -1, -1));
        EXPECT_THAT(read(0, AEGP_LayerStream_ROTATE_Y), ElementsAre(0, 20, -1, -1, -1));
        EXPECT_THAT(read(0, AEGP_LayerStream_ROTATE_Z), ElementsAre(0, 30, -1, -1, -1));
        EXPECT_THAT(read(4, AEGP_LayerStream_ANCHORPOINT), ElementsAre(0, 7, 8, 9, -1));
        // Streams that are not there leave everything untouched.
        EXPECT_THAT(read(4, AEGP_LayerStream_SCALE), ElementsAre(5, -1, -1, -1, -1));
        EXPECT_THAT(read(1, AEGP_LayerStream_ORIENTATION), ElementsAre(5, -1, -1, -1, -1));
        EXPECT_THAT(read(0, 4), ElementsAre(5, -1, -1, -1, -1));
    });
    EXPECT_THAT(messages, IsEmpty());
}

TEST_F(Suites, SetValuesAndKeysAtTheCurrentTime) {
    inside([&] {
        AEGP_StreamRefH position = nullptr;
        EXPECT_EQ(
            streams().AEGP_GetNewLayerStream(1, layer(0), AEGP_LayerStream_POSITION, &position), 0);
        AEGP_StreamValue value{position, {}};
        value.val.three_d = {4, 5, 6};
        EXPECT_EQ(streams().AEGP_SetStreamValue(1, position, &value), 0);
        A_Time now{};
        layers().AEGP_GetLayerCurrentTime(layer(0), AEGP_LTimeMode_CompTime, &now);
        AEGP_KeyframeIndex index = -1;
        const auto& keys = suite<AEGP_KeyframeSuite1>(kAEGPKeyframeSuite, 1);
        EXPECT_EQ(keys.AEGP_InsertKeyframe(position, AEGP_LTimeMode_CompTime, &now, &index), 0);
        EXPECT_EQ(index, 0);
        value.val.three_d = {7, 8, 9};
        EXPECT_EQ(streams().AEGP_SetStreamValue(1, position, &value), 0);
        value.val.three_d.y = std::numeric_limits<double>::quiet_NaN();
        EXPECT_EQ(streams().AEGP_SetStreamValue(1, position, &value), 5);
        EXPECT_EQ(streams().AEGP_DisposeStream(position), 0);
    });
    const Layer& card = host.document.scene().layer_at(0);
    EXPECT_EQ(card.transform.position, (Vec3{4, 5, 6}));
    EXPECT_THAT(*card.keys_of(Stream::Position), ElementsAre(Keyframe{601 / 600.0, {7, 8, 9}}))
        << "one key: the value was set where the key had been put";
    EXPECT_THAT(host.document.undo_names(), SizeIs(3)) << "outside a group each is a step";
}

TEST_F(Suites, HandOutTheSelectionAndTakeItBack) {
    inside([&] {
        const auto& comps = suite<AEGP_CompSuite4>(kAEGPCompSuite, 4);
        AEGP_CollectionH selected = nullptr, mine = nullptr;
        EXPECT_EQ(comps.AEGP_GetNewCollectionFromCompSelection(1, comp(), &selected), 0);
        std::vector<AEGP_LayerH> held;
        A_u_long count = 0;
        collections().AEGP_GetCollectionNumItems(selected, &count);
        for (A_u_long i = 0; i < count; ++i) {
            AEGP_CollectionItem item{77, nullptr};
            EXPECT_EQ(collections().AEGP_GetCollectionItemByIndex(selected, i, &item), 0);
            EXPECT_EQ(item.type, item.layerH ? 1 : 0);
            held.push_back(item.layerH);
        }
        EXPECT_THAT(held, ElementsAre(layer(2), nullptr, layer(0), layer(0)));
        AEGP_CollectionItem item{};
        EXPECT_EQ(collections().AEGP_GetCollectionItemByIndex(selected, count, &item), 5);

        collections().AEGP_NewCollection(1, &mine);
        item = {AEGP_CollectionItemType_LAYER, layer(5)};
        EXPECT_EQ(collections().AEGP_CollectionPushBack(mine, &item), 0);
        EXPECT_EQ(comps.AEGP_SetSelection(comp(), mine), 0);
        EXPECT_EQ(host.choose(AEGP_Command_DUPLICATE), 0);
        EXPECT_EQ(collections().AEGP_DisposeCollection(mine), 0);
        EXPECT_EQ(collections().AEGP_DisposeCollection(selected), 0);
    });
    const Scene& scene = host.document.scene();
    EXPECT_EQ(scene.layer_at(5).name, "Light 2");
    EXPECT_THAT(scene.selection(), ElementsAre(scene.layer_at(5).id));
}

TEST_F(Suites, DuplicateAndReorderLayers) {
    inside([&] {
        const AEGP_LayerH title = layer(2);
        AEGP_LayerH duplicate = nullptr;
        A_long index = -1;
        EXPECT_EQ(
            suite<AEGP_LayerSuite10>(kAEGPLayerSuite, 10).AEGP_DuplicateLayer(title, &duplicate),
            0);
        layers().AEGP_GetLayerIndex(duplicate, &index);
        EXPECT_EQ(index, 2);
        layers().AEGP_GetLayerIndex(title, &index);
        EXPECT_EQ(index, 3);
        EXPECT_GT(duplicate, layer(6));
        EXPECT_EQ(layers().AEGP_ReorderLayer(duplicate, 6), 0);
        EXPECT_EQ(layer(6), duplicate);
        EXPECT_EQ(layers().AEGP_ReorderLayer(duplicate, 7), 5);
        EXPECT_EQ(layers().AEGP_ReorderLayer(duplicate, -1), 5);
    });
}

TEST_F(Suites, OfAnotherSceneKnowNothingOfTheOldOne) {
    inside([&] {
        const AEGP_LayerH card = layer(0), last = layer(5);
        const AEGP_CompH old = comp();
        AEGP_ItemH item = nullptr, source = nullptr;
        suite<AEGP_ItemSuite3>(kAEGPItemSuite, 3).AEGP_GetActiveItem(&item);
        layers().AEGP_GetLayerSourceItem(card, &source);
        AEGP_StreamRefH stream = nullptr;
        streams().AEGP_GetNewLayerStream(1, card, AEGP_LayerStream_POSITION, &stream);
        host.document.remove_layer(host.document.scene().layer_at(1).id);
        const auto& comps = suite<AEGP_CompSuite4>(kAEGPCompSuite, 4);
        AEGP_CollectionH collection = nullptr;
        comps.AEGP_GetNewCollectionFromCompSelection(1, old, &collection);
        for (int times = 0; times < 2; ++times) {
            host.open(parse_scene(scene_text, "again"));
            A_long number = 0;
            EXPECT_EQ(layers().AEGP_GetLayerIndex(card, &number), 3);
            EXPECT_EQ(layers().AEGP_GetLayerIndex(last, &number), 3);
            EXPECT_EQ(layers().AEGP_GetCompNumLayers(old, &number), 3);
            A_u_long count = 9;
            EXPECT_EQ(collections().AEGP_GetCollectionNumItems(collection, &count), 0);
            EXPECT_EQ(count, 0u);
            AEGP_StreamValue value{};
            EXPECT_EQ(streams().AEGP_SetStreamValue(1, stream, &value), 3);
            AEGP_CompH none = nullptr;
            EXPECT_EQ(comps.AEGP_GetCompFromItem(item, &none), 3);
            EXPECT_GT(layer(0), last);
            EXPECT_NE(comp(), old);
            EXPECT_EQ(layers().AEGP_GetLayerIndex(layer(5), &number), 0);
            EXPECT_EQ(number, 5);
        }
        EXPECT_EQ(streams().AEGP_DisposeStream(stream), 0);
        EXPECT_EQ(collections().AEGP_DisposeCollection(collection), 0);
        EXPECT_THAT(host.document.undo_names(), IsEmpty());
    });
}

TEST_F(Suites, AnswerMisuseWithThreeAndTellOfIt) {
    inside([&] {
        const AEGP_LayerH card = layer(0);
        AEGP_StreamRefH stream = nullptr;
        streams().AEGP_GetNewLayerStream(1, card, AEGP_LayerStream_POSITION, &stream);
        AEGP_CollectionH collection = nullptr;
        collections().AEGP_NewCollection(1, &collection);
        collections().AEGP_DisposeCollection(collection);
        host.document.remove_layer(host.document.scene().layer_at(0).id);
        A_long number = 0;
        A_u_long count = 0;
        AEGP_StreamValue value{};
        const A_Time no_scale{1, 0};
        int wild = 0;
        const auto wild_layer = reinterpret_cast<AEGP_LayerH>(&wild);
        const auto other_kind = reinterpret_cast<AEGP_LayerH>(comp());
        EXPECT_THAT(
            (std::vector<A_Err>{
                layers().AEGP_GetLayerIndex(nullptr, &number),
                layers().AEGP_GetLayerIndex(card, &number),
                layers().AEGP_GetLayerIndex(wild_layer, &number),
                layers().AEGP_GetLayerIndex(other_kind, &number),
                layers().AEGP_GetLayerIndex(layer(0), nullptr),
                streams().AEGP_SetStreamValue(1, stream, &value),
                streams().AEGP_SetStreamValue(1, nullptr, &value),
                streams().AEGP_GetLayerStreamValue(layer(0), 1, 1, &no_scale, 0, &value.val),
                streams().AEGP_DisposeStream(nullptr),
                collections().AEGP_GetCollectionNumItems(collection, &count),
                collections().AEGP_DisposeCollection(collection),
                suite<AEGP_UtilitySuite3>(kAEGPUtilitySuite, 3).AEGP_EndUndoGroup(),
                suite<AEGP_UtilitySuite3>(kAEGPUtilitySuite, 3).AEGP_ReportInfo(1, nullptr),
                suite<AEGP_RegisterSuite6>(kAEGPRegisterSuite, 6)
                    .AEGP_RegisterIdleHook(1, nullptr, nullptr),
                host.basic_suite()->ReleaseSuite("No Suite", 1)}),
            Each(misuse_error));
        EXPECT_EQ(messages.size(), 15u);
        EXPECT_EQ(host.misuses(), 15);
        EXPECT_THAT(messages, Each(HasSubstr("misuse by the plug-in: ")));
        EXPECT_THAT(messages[1],
                    HasSubstr("AEGP Layer Suite.GetLayerIndex: a layer that is no more"));
        EXPECT_THAT(messages[3], HasSubstr("a composition instead of a layer"));
        host.document.undo();
        EXPECT_EQ(layers().AEGP_GetLayerIndex(card, &number), 0) << "the layer is back";
        EXPECT_EQ(streams().AEGP_DisposeStream(stream), 0);
    });
    A_long count = 0;
    const auto* table =
        static_cast<const AEGP_LayerSuite5*>(find_suite(kAEGPLayerSuite, 5)->functions);
    EXPECT_EQ(table->AEGP_GetCompNumLayers(nullptr, &count), misuse_error) << "no hook is running";
}

TEST_F(Suites, AreLoggedInTheOrderInWhichCallsBegin) {
    std::vector<std::string> lines;
    host.log.set_sink([&](const std::string& line) { lines.push_back(line); });
    inside([&] {
        const void* table = nullptr;
        host.basic_suite()->AcquireSuite("No \"Suite\"", 2, &table);
        AEGP_StreamRefH rotation = nullptr;
        AEGP_StreamValue value{};
        value.val.one_d = 0.25;
        host.log.set_sink({});
        const AEGP_StreamSuite4& suite = streams();
        const AEGP_LayerH title = layer(2);
        host.log.set_sink([&](const std::string& line) { lines.push_back(line); });
        suite.AEGP_GetNewLayerStream(1, title, AEGP_LayerStream_ROTATE_X, &rotation);
        suite.AEGP_SetStreamValue(1, rotation, &value);
        const A_Time time{1, 4};
        suite.AEGP_GetLayerStreamValue(nullptr, 0, 1, &time, 1, &value.val);
    });
    EXPECT_THAT(
        lines,
        ElementsAre(
            "{\"n\": 1, \"suite\": \"SPBasic\", \"version\": 1, \"call\": \"AcquireSuite\", "
            "\"args\": {\"name\": \"No \\\"Suite\\\"\", \"version\": 2}, \"result\": 516}\n",
            "{\"n\": 2, \"suite\": \"AEGP Stream Suite\", \"version\": 4, \"call\": "
            "\"GetNewLayerStream\", \"args\": {\"layer\": 2, \"stream\": 8}, "
            "\"result\": 0}\n",
            "{\"n\": 3, \"suite\": \"AEGP Stream Suite\", \"version\": 4, \"call\": "
            "\"SetStreamValue\", \"args\": {\"layer\": 2, \"stream\": 8, "
            "\"value\": 0.25}, \"result\": 0}\n",
            "{\"n\": 4, \"suite\": \"AEGP Stream Suite\", \"version\": 4, \"call\": "
            "\"GetLayerStreamValue\", \"args\": {\"layer\": null, \"stream\": 0, \"time_mode\": 1, "
            "\"time\": 0.25, \"pre_expression\": true}, \"result\": 3}\n"));
}

TEST(CallLog, HoldsBackWhatIsInsideACallThatGoesOn) {
    std::string text;
    CallLog log;
    log.set_sink([&](const std::string& line) { text += line.substr(0, 7); });
    const std::size_t outer = log.begin({"S", 1, "outer"}, "{}");
    log.end(log.begin({"S", 1, "inner"}, "{}"), 0);
    EXPECT_EQ(text, "");
    log.end(outer, 0);
    EXPECT_EQ(text, "{\"n\": 1{\"n\": 2");
}

class FailingSuites : public Suites {
  protected:
    FailingSuites()
        : Suites({.without = {"panels", "layer-suite-10"},
                  .failures = {parse_failure("AEGP Stream Suite.SetStreamValue:2:7"),
                               parse_failure("AEGP Stream Suite.SetStreamValue:3"),
                               parse_failure("SPBasic.AcquireSuite:6:9")}}) {}
};

TEST_F(FailingSuites, FailAtTheCountedCallsAndDoNothing) {
    inside([&] {
        const AEGP_LayerH card = layer(0); // three acquisitions
        const AEGP_StreamSuite4& suite = streams();
        AEGP_StreamRefH stream = nullptr;
        suite.AEGP_GetNewLayerStream(1, card, AEGP_LayerStream_POSITION, &stream);
        std::vector<A_Err> results;
        for (int i = 1; i <= 4; ++i) {
            AEGP_StreamValue value{};
            value.val.three_d = {i * 1.0, 0, 0};
            results.push_back(suite.AEGP_SetStreamValue(1, stream, &value));
            const double x = host.document.scene().layer_at(0).transform.position[0];
            EXPECT_EQ(x, i == 2 || i == 3 ? 1 : i);
        }
        EXPECT_THAT(results, ElementsAre(0, 7, 4, 0));
        const void* table = nullptr;
        const auto acquire = [&](const char* name, A_long version) {
            return host.basic_suite()->AcquireSuite(name, version, &table);
        };
        EXPECT_EQ(acquire(kAEGPPanelSuite, 1), 516);
        EXPECT_EQ(acquire(kAEGPLayerSuite, 8), 9) << "the sixth";
        EXPECT_EQ(table, nullptr);
        EXPECT_EQ(acquire(kAEGPLayerSuite, 10), 516);
        EXPECT_EQ(acquire(kAEGPLayerSuite, 8), 0);
    });
}

class MisbehavingSuites : public Suites {
  protected:
    MisbehavingSuites() : Suites({.without = {}, .failures = {}, .misdeeds = all()}) {}
    static std::vector<PlannedMisdeed> all() {
        std::vector<PlannedMisdeed> planned;
        for (const char* text :
             {"null-handles:4", "null-handles:5", "negative-counts:1", "huge-counts:2",
              "zero-sizes:2", "huge-sizes:1", "broken-names:1", "long-names:2", "empty-names:3",
              "nan-values:1", "infinite-values:2", "layer-removed:29"})
            planned.push_back(parse_misdeed(text));
        return planned;
    }
};

TEST_F(MisbehavingSuites, AnswerNonsenseWithSuccessAtTheCountedAnswersOfAKind) {
    inside([&] {
        const AEGP_LayerH card = layer(0); // three handles, six calls
        const AEGP_LayerSuite5& suite = layers();
        AEGP_StreamRefH stream = reinterpret_cast<AEGP_StreamRefH>(1);
        EXPECT_EQ(streams().AEGP_GetNewLayerStream(1, card, AEGP_LayerStream_POSITION, &stream), 0);
        EXPECT_EQ(stream, nullptr);
        EXPECT_THAT(host.handles.open_streams(), IsEmpty()) << "nobody could dispose of it";
        AEGP_LayerH none = card;
        EXPECT_EQ(suite.AEGP_GetCompLayerByIndex(host.handles.of_composition(), 0, &none), 0);
        EXPECT_EQ(none, nullptr);
        for (const A_long wanted : {-1, 2147483647, 0}) {
            A_long index = 9;
            EXPECT_EQ(suite.AEGP_GetLayerIndex(card, &index), 0);
            EXPECT_EQ(index, wanted);
        }
        const auto& item_suite = Suites::suite<AEGP_ItemSuite3>(kAEGPItemSuite, 3);
        for (const A_long wanted : {2147483647, 0, 400}) {
            A_long width = 1, height = 1;
            item_suite.AEGP_GetItemDimensions(host.handles.of_item({ItemRef::Kind::Composition, 0}),
                                              &width, &height);
            EXPECT_EQ(width, wanted);
            EXPECT_EQ(height, wanted == 400 ? 300 : wanted);
        }
        for (const std::size_t length : {11, 255, 0, 4}) {
            A_char name[300];
            std::memset(name, '#', sizeof name);
            EXPECT_EQ(suite.AEGP_GetLayerName(card, name, nullptr), 0);
            EXPECT_EQ(std::strlen(name), length);
            EXPECT_EQ(name[256], '#');
        }
        const A_Time now{0, 600};
        for (const int wanted : {FP_NAN, FP_INFINITE, FP_NORMAL}) {
            AEGP_StreamVal value{};
            EXPECT_EQ(streams().AEGP_GetLayerStreamValue(card, AEGP_LayerStream_POSITION, 1, &now,
                                                         0, &value),
                      0);
            EXPECT_EQ(std::fpclassify(value.three_d.z), wanted);
        }
        EXPECT_EQ(host.document.scene().layer_count(), 6u);
        for (int call = 28; call <= 29; ++call) suite.AEGP_GetLayerOffset(nullptr, nullptr);
        EXPECT_EQ(host.document.scene().layer_count(), 5u);
        EXPECT_THROW(host.handles.layer(card), Misuse) << "the one selected last";
    });
}

TEST(Misbehaviour, ChangesTheSceneAsToldAndIsReadFromItsText) {
    struct Case {
        const char* word;
        const char* layers; // afterwards
        Selection selection;
    };
    for (const Case& it : {Case{"layer-removed", "A,Cam,Cam 2", {}},
                           {"layer-added", "A,Cam,Cam 2,B 2,B", {4}},
                           {"layer-moved", "Cam,Cam 2,B,A", {4}},
                           {"cameras-removed", "A,B", {4}},
                           {"selection-changed", "A,Cam,Cam 2,B", {1, 2, 3}}}) {
        Document document(parse_scene(R"({"format": "minihost scene 1", "layers": [
            {"name": "A", "kind": "text"}, {"name": "Cam", "kind": "camera"},
            {"name": "Cam 2", "kind": "camera"}, {"name": "B", "kind": "text"}],
            "selection": [3]})",
                                      "test"));
        Misbehaviour misbehaviour({parse_misdeed(it.word + std::string(":2"))});
        for (int call = 1; call <= 3; ++call) misbehaviour.before_call(document);
        std::string names;
        for (const Layer* layer : document.scene().layers())
            names += (names.empty() ? "" : ",") + layer->name;
        EXPECT_EQ(names, it.layers) << it.word;
        EXPECT_EQ(document.scene().selection(), it.selection) << it.word;
        EXPECT_EQ(misbehaviour.answers(AnswerKind::Scene), 3);
    }
    for (const char* text : {"", "lies", "null-handles:", "null-handles:0", "null-handles:x"})
        EXPECT_THROW(parse_misdeed(text), std::invalid_argument) << text;
    EXPECT_EQ(parse_misdeed("nan-values").number, 0);
}

TEST(Failures, AreReadFromTheirText) {
    EXPECT_EQ(parse_failure("PF AE App Suite.PF_AppGetColor").code, 4);
    EXPECT_EQ(parse_failure("AEGP Item Suite.AEGP_GetItemType:12:-3").call,
              "AEGP Item Suite.GetItemType");
    EXPECT_EQ(parse_failure("AEGP Item Suite.GetItemType:12:-3").number, 12);
    EXPECT_EQ(parse_failure("AEGP Item Suite.GetItemType:12:-3").code, -3);
    for (const char* text : {"", "GetItemType", "AEGP Item Suite.Get",
                             "AEGP Item Suite.GetItemType:0", "AEGP Item Suite.GetItemType:x",
                             "AEGP Item Suite.GetItemType:1:", "AEGP Item Suite.GetItemType:1:2:3"})
        EXPECT_THROW(parse_failure(text), std::invalid_argument) << text;
}

TEST(Colors, TextCanBeReadOnItsGroundInBothPalettes) {
    const auto distance = [](Palette palette, int a, int b) {
        const auto level = [&](int selector) {
            const PF_App_Color it =
                interface_color(palette, static_cast<PF_App_ColorType>(selector));
            return (it.red + it.green + it.blue) / 3.0 / 65535;
        };
        return std::abs(level(a) - level(b));
    };
    for (const Palette palette : {Palette::Dark, Palette::Light}) {
        EXPECT_GT(distance(palette, 2, 1000), 0.5);  // text on the panel
        EXPECT_GT(distance(palette, 9, 8), 0.5);     // title on a button
        EXPECT_GT(distance(palette, 16, 15), 0.5);   // and pressed
        EXPECT_GT(distance(palette, 30, 29), 0.15);  // and disabled
        EXPECT_GT(distance(palette, 23, 1000), 0.2); // disabled text
        EXPECT_LT(distance(palette, 23, 1000), distance(palette, 2, 1000));
        EXPECT_GT(distance(palette, 7, 8), 0.15); // a button's outline
    }
    EXPECT_NE(interface_color(Palette::Dark, 1000).red, interface_color(Palette::Light, 1000).red);
}

// --- Hooks, registered by an entry function of the test's own

const SPBasicSuite* basic;
std::vector<std::string> calls;
A_Err result_of_hooks;
bool hooks_throw;

A_Err note(const std::string& name) {
    calls.push_back(name);
    if (hooks_throw) throw std::runtime_error("from a hook");
    return result_of_hooks;
}
template <typename Table>
const Table& acquire(const char* name, A_long version) {
    const void* table = nullptr;
    basic->AcquireSuite(name, version, &table);
    return *static_cast<const Table*>(table);
}
A_Err on_command(AEGP_GlobalRefcon, AEGP_CommandRefcon, AEGP_Command command, AEGP_HookPriority,
                 A_Boolean, A_Boolean* handled) {
    *handled = command == 5001;
    if (command == 5001) acquire<AEGP_PanelSuite1>(kAEGPPanelSuite, 1).AEGP_ToggleVisibility("P");
    if (command == 5002) acquire<AEGP_CommandSuite1>(kAEGPCommandSuite, 1).AEGP_DoCommand(5002);
    return note("command");
}
A_Err on_panel(AEGP_GlobalRefcon, AEGP_CreatePanelRefcon, NSView*, AEGP_PanelH panel,
               AEGP_PanelFunctions1* functions, AEGP_PanelRefcon*) {
    functions->GetSnapSizes = [](AEGP_PanelRefcon, A_LPoint*, A_long* count) -> A_Err {
        *count = 0;
        return note("sizes");
    };
    acquire<AEGP_PanelSuite1>(kAEGPPanelSuite, 1).AEGP_SetTitle(panel, "Title");
    return note("panel");
}
A_Err entry(SPBasicSuite* given, A_long, A_long, AEGP_PluginID id, AEGP_GlobalRefcon*) {
    basic = given;
    const auto& hooks = acquire<AEGP_RegisterSuite6>(kAEGPRegisterSuite, 6);
    const auto& commands = acquire<AEGP_CommandSuite1>(kAEGPCommandSuite, 1);
    AEGP_Command command = 0, other = 0;
    commands.AEGP_GetUniqueCommand(&command);
    commands.AEGP_GetUniqueCommand(&other);
    commands.AEGP_InsertMenuCommand(command, "Command", AEGP_Menu_FLOATERS, -1);
    hooks.AEGP_RegisterCommandHook(id, 1, AEGP_Command_ALL, on_command, nullptr);
    hooks.AEGP_RegisterIdleHook(
        id, [](AEGP_GlobalRefcon, AEGP_IdleRefcon, A_long*) { return note("idle"); }, nullptr);
    hooks.AEGP_RegisterDeathHook(
        id, [](AEGP_GlobalRefcon, AEGP_DeathRefcon) { return note("death"); }, nullptr);
    acquire<AEGP_PanelSuite1>(kAEGPPanelSuite, 1)
        .AEGP_RegisterCreatePanelHook(id, "P", on_panel, nullptr, 1);
    return 0;
}

class HookedHost : public Suites {
  protected:
    HookedHost() {
        calls.clear();
        result_of_hooks = 0;
        hooks_throw = false;
        EXPECT_EQ(host.enter(entry), 0);
    }
};

TEST_F(HookedHost, MakesAPanelOnceAndThenTogglesIt) {
    EXPECT_EQ(host.panels.view(), nullptr);
    EXPECT_EQ(host.choose(5001), 0);
    EXPECT_THAT(calls, ElementsAre("panel", "sizes", "command"));
    ASSERT_NE(host.panels.view(), nullptr);
    EXPECT_TRUE(host.panels.view()->is_visible());
    EXPECT_EQ(host.panels.view()->title(), "Title");
    host.choose(5001);
    EXPECT_FALSE(host.panels.view()->is_visible());
    EXPECT_TRUE(host.panels.close(host));
    EXPECT_FALSE(host.panels.close(host));
    calls.clear();
    host.choose(5001);
    EXPECT_THAT(calls, ElementsAre("panel", "sizes", "command")) << "made anew";
}

TEST_F(HookedHost, SurvivesHooksThatFailThrowOrNeverEnd) {
    EXPECT_EQ(host.choose(5002), bad_argument_error) << "not in a menu, and nobody handled it";
    EXPECT_EQ(calls.size(), 16u) << "a command that goes on choosing itself is stopped";
    EXPECT_EQ(host.idle(), 0);
    result_of_hooks = 21;
    EXPECT_EQ(host.idle(), 21);
    EXPECT_THAT(messages.back(), HasSubstr("idle hook returned error 21"));
    host.choose(5001);
    EXPECT_EQ(host.panels.view(), nullptr) << "its hook failed";
    hooks_throw = true;
    EXPECT_EQ(host.idle(), host_error);
    EXPECT_THAT(messages.back(), HasSubstr("threw an exception"));
    EXPECT_EQ(host.choose(AEGP_Command_DUPLICATE), host_error);
    hooks_throw = false;
    EXPECT_THAT(host.bury(),
                UnorderedElementsAre(HasSubstr("AEGP Register Suite 6, acquired 1 time"),
                                     HasSubstr("AEGP Command Suite 1"),
                                     HasSubstr("AEGP Workspace Panel Suite 1")));
    calls.clear();
    host.idle();
    host.choose(5001);
    EXPECT_THAT(calls, IsEmpty()) << "nothing of the plug-in is called after its death";
}

} // namespace
} // namespace minihost
