// The suites over a scene: results, handles, and answers to misuse.

#include "minihost/suites/SuiteTable.h"
#include "tests/minihost/support/Suites.h"

#include <cstring>
#include <gmock/gmock.h>
#include <limits>

namespace minihost {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

TEST_F(Suites, DescribeTheLayers) {
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

TEST_F(Suites, TruncateNamesBeforeAnIncompleteCharacter) {
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

TEST_F(Suites, ReadOnlyTheNumbersThatAStreamHas) {
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
        // A stream that does not exist leaves the value alone.
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

TEST_F(Suites, MakeHandlesOfAnOldSceneStale) {
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
            host.open(parse_scene(sample_scene, "again"));
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

TEST_F(Suites, AnswerMisuseWithThreeAndReportIt) {
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
                basic_suite.ReleaseSuite("No Suite", 1)}),
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

TEST_F(Suites, LogCallsInTheOrderInWhichTheyBegin) {
    std::vector<std::string> lines;
    host.log.set_sink([&](const std::string& line) { lines.push_back(line); });
    inside([&] {
        const void* table = nullptr;
        basic_suite.AcquireSuite("No \"Suite\"", 2, &table);
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

TEST(CallLog, HoldsBackLinesInsideAnIncompleteCall) {
    std::string text;
    CallLog log;
    log.set_sink([&](const std::string& line) { text += line.substr(0, 7); });
    const std::size_t outer = log.begin({"S", 1, "outer"}, "{}");
    log.end(log.begin({"S", 1, "inner"}, "{}"), 0);
    EXPECT_EQ(text, "");
    log.end(outer, 0);
    EXPECT_EQ(text, "{\"n\": 1{\"n\": 2");
}

} // namespace
} // namespace minihost
