// A host that fails and misbehaves on request.

#include "minihost/suites/MisbehaviourPlan.h"
#include "tests/minihost/support/Suites.h"

#include <cmath>
#include <cstring>
#include <gmock/gmock.h>
#include <stdexcept>

namespace minihost {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

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
            return basic_suite.AcquireSuite(name, version, &table);
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
    MisbehavingSuites() : Suites({.without = {}, .failures = {}, .misbehaviours = all()}) {}
    static std::vector<PlannedMisbehaviour> all() {
        std::vector<PlannedMisbehaviour> planned;
        for (const char* text :
             {"null-handles:4", "null-handles:5", "negative-counts:1", "huge-counts:2",
              "zero-sizes:2", "huge-sizes:1", "broken-names:1", "long-names:2", "empty-names:3",
              "nan-values:1", "infinite-values:2", "layer-removed:29"})
            planned.push_back(parse_misbehaviour(text));
        return planned;
    }
};

TEST_F(MisbehavingSuites, CorruptTheCountedResultsOfAKind) {
    inside([&] {
        const AEGP_LayerH card = layer(0); // three handles, six calls
        const AEGP_LayerSuite5& suite = layers();
        AEGP_StreamRefH stream = reinterpret_cast<AEGP_StreamRefH>(1);
        EXPECT_EQ(streams().AEGP_GetNewLayerStream(1, card, AEGP_LayerStream_POSITION, &stream), 0);
        EXPECT_EQ(stream, nullptr);
        EXPECT_THAT(host.handles.open_streams(), IsEmpty())
            << "the plug-in could not dispose of it";
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

TEST(MisbehaviourPlan, ChangesTheSceneAndIsParsed) {
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
        MisbehaviourPlan plan({parse_misbehaviour(it.word + std::string(":2"))});
        for (int call = 1; call <= 3; ++call) plan.before_call(document);
        std::string names;
        for (const Layer* layer : document.scene().layers())
            names += (names.empty() ? "" : ",") + layer->name;
        EXPECT_EQ(names, it.layers) << it.word;
        EXPECT_EQ(document.scene().selection(), it.selection) << it.word;
        EXPECT_EQ(plan.count(MisbehaviourKind::Scene), 3);
    }
    for (const char* text : {"", "lies", "null-handles:", "null-handles:0", "null-handles:x"})
        EXPECT_THROW(parse_misbehaviour(text), std::invalid_argument) << text;
    EXPECT_EQ(parse_misbehaviour("nan-values").number, 0);
}

TEST(FailurePlan, IsParsed) {
    EXPECT_EQ(parse_failure("PF AE App Suite.PF_AppGetColor").code, 4);
    EXPECT_EQ(parse_failure("AEGP Item Suite.AEGP_GetItemType:12:-3").call,
              "AEGP Item Suite.GetItemType");
    EXPECT_EQ(parse_failure("AEGP Item Suite.GetItemType:12:-3").number, 12);
    EXPECT_EQ(parse_failure("AEGP Item Suite.GetItemType:12:-3").code, -3);
    for (const char* text : {"AEGP Item Suite.GetItemType:0", "AEGP Item Suite.GetItemType:x",
                             "AEGP Item Suite.GetItemType:1:", "AEGP Item Suite.GetItemType:1:2:3"})
        EXPECT_THROW(parse_failure(text), std::invalid_argument) << text;
}

} // namespace
} // namespace minihost
