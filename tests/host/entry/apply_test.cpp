// One Apply: which layers, in which order, with which calls, and what is written.

#include "math/random.h"
#include "tests/host/entry/PluginTest.h"

#include <algorithm>
#include <cmath>
#include <ctime>
#include <map>

namespace {

using minihost::Layer;
using minihost::Vec3;
using testing::ElementsAre;
using testing::IsEmpty;

// The i-th place of the initial helix, relative to the composition's centre.
testing::Matcher<Vec3> helix(int i) {
    const double angle = 50 * i * M_PI / 180;
    return Near(360 * std::cos(angle), -50.0 * i, -360 * std::sin(angle));
}

std::vector<std::string> solids(int count) {
    std::vector<std::string> all;
    for (int i = 0; i < count; ++i) all.push_back(solid("S" + std::to_string(i)));
    return all;
}

// The layer at each place of the helix, by height.
std::vector<std::string> order(PluginHost& host, int count) {
    std::vector<std::string> names(count);
    for (const std::string& name : host.layer_names())
        names.at(std::lround(-from_centre(host.layer(name))[1] / 50)) = name;
    return names;
}

TEST(Apply, RefreshesCollectsAndWritesInThisOrder) {
    PluginHost host(scene_of({solid("Card")}));
    host.play("open");
    host.new_calls();
    host.play("click apply");
    const std::vector<std::string> refresh = {"Collection.DisposeCollection",
                                              "Item.GetActiveItem",
                                              "Item.GetItemType",
                                              "Comp.GetCompFromItem",
                                              "Comp.GetNewCollectionFromCompSelection",
                                              "Item.GetItemDimensions",
                                              "Collection.GetCollectionNumItems",
                                              "Collection.GetCollectionItemByIndex",
                                              "Layer.IsLayer3D",
                                              "Layer.GetLayerSourceItem",
                                              "Item.GetItemDimensions"};
    const std::vector<std::string> collect = {"Utility.StartUndoGroup",
                                              "Collection.GetCollectionNumItems",
                                              "Collection.GetCollectionItemByIndex",
                                              "Layer.GetLayerObjectType",
                                              "Layer.IsLayer3D",
                                              "Layer.GetLayerCurrentTime",
                                              "Layer.GetLayerCurrentTime",
                                              "Stream.GetLayerStreamValue 2", // the scale alone
                                              "Stream.GetLayerStreamValue 1",
                                              "Layer.GetLayerIndex",
                                              "Layer.GetLayerOffset",
                                              "Stream.GetLayerStreamValue 10",
                                              "Stream.GetLayerStreamValue 8",
                                              "Stream.GetLayerStreamValue 9",
                                              "Stream.GetLayerStreamValue 3",
                                              "Layer.GetLayerSourceItem",
                                              "Item.GetItemDimensions"};
    const std::vector<std::string> write = {
        "Stream.GetNewLayerStream 1", "Stream.SetStreamValue 1", "Stream.DisposeStream 1",
        "Stream.GetNewLayerStream 2", "Stream.SetStreamValue 2", "Stream.DisposeStream 2",
        "Utility.EndUndoGroup"};
    std::vector<std::string> wanted = refresh;
    wanted.insert(wanted.end(), collect.begin(), collect.end());
    wanted.insert(wanted.end(), write.begin(), write.end());
    EXPECT_EQ(host.new_calls(), wanted);
    EXPECT_EQ(host.state()["undo"], Json({"Tamborel"}));

    // Orienting writes four more streams; each key precedes its value.
    host.play("set orientation.xy=on\nset keys.orientation=on\nset keys.scale=on");
    host.new_calls();
    host.play("click apply");
    std::vector<std::string> calls = host.new_calls();
    calls.erase(calls.begin(), calls.begin() + static_cast<long>(refresh.size() + collect.size()));
    std::erase_if(calls, [](const std::string& call) {
        return call.find("NewLayerStream") != call.npos || call.find("Dispose") != call.npos;
    });
    EXPECT_THAT(calls, ElementsAre("Stream.SetStreamValue 8", "Stream.SetStreamValue 9",
                                   "Stream.SetStreamValue 3", "Keyframe.InsertKeyframe 10",
                                   "Stream.SetStreamValue 10", "Stream.SetStreamValue 1",
                                   "Keyframe.InsertKeyframe 2", "Stream.SetStreamValue 2",
                                   "Utility.EndUndoGroup"));
}

TEST(Apply, PlacesThe3DLayersAndNothingElse) {
    PluginHost host(scene_of(
        {R"({"name": "Flat", "kind": "solid", "source": {"width": 10, "height": 10}})",
         solid("One"), camera("Camera"), R"({"name": "Light", "kind": "light"})",
         R"({"name": "Title", "kind": "text", "three_d": true})",
         R"({"name": "Form", "kind": "shape", "three_d": true})",
         R"({"name": "Photo", "kind": "footage", "three_d": true, "source": {"width": 4, "height": 3}})"}));
    std::map<std::string, Layer> before;
    for (const std::string& name : host.layer_names()) before[name] = host.layer(name);
    host.play("open\nclick apply");
    int place = 0;
    for (const char* name : {"One", "Title", "Form", "Photo"})
        EXPECT_THAT(from_centre(host.layer(name)), helix(place++)) << name;
    for (const char* name : {"Flat", "Camera", "Light"})
        EXPECT_EQ(host.layer(name).transform, before[name].transform) << name;
    host.play("undo");
    for (const auto& [name, layer] : before) EXPECT_EQ(host.layer(name).transform, layer.transform);
}

TEST(Apply, OrdersByIndexAndReverses) {
    PluginHost host(scene_of(solids(5)));
    host.play("open\nselect S3 S0 S4 S1 S2\nclick apply");
    EXPECT_THAT(order(host, 5), ElementsAre("S0", "S1", "S2", "S3", "S4"));
    host.play("set reverse-order=on\nclick apply");
    EXPECT_THAT(order(host, 5), ElementsAre("S4", "S3", "S2", "S1", "S0"));
}

// The seed of the random order is the clock's second, which may change: two orders are possible.
TEST(Apply, DrawsARandomOrderOfTheReversedLayers) {
    const auto drawn = [](std::time_t second) {
        math::SetRand(second);
        std::vector<std::string> left, taken;
        for (int i = 9; i >= 0; --i) left.push_back("S" + std::to_string(i));
        while (!left.empty()) {
            const auto at = left.begin() + math::LRand() % static_cast<long>(left.size());
            taken.push_back(*at);
            left.erase(at);
        }
        return taken;
    };
    PluginHost host(scene_of(solids(10)));
    host.play("open\nset reverse-order=on\nset random-order=on");
    const std::time_t before = std::time(nullptr);
    host.play("click apply");
    const std::time_t after = std::time(nullptr);
    const auto found = order(host, 10);
    bool known = false;
    for (std::time_t second = before; second <= after; ++second) known |= found == drawn(second);
    EXPECT_TRUE(known);
}

TEST(Apply, RepeatsTheLayersInBlocks) {
    for (const bool direct : {true, false}) {
        minihost::HostOptions options;
        if (!direct) options.without = {"layer-suite-10"};
        PluginHost host(scene_of(solids(2)), options);
        host.play("open\nset repeat=on\nset repeat.count=2\nclick apply");
        // Each duplicate stays where the host puts it: right above its original.
        EXPECT_THAT(host.layer_names(), ElementsAre("S0 2", "S0 3", "S0", "S1 2", "S1 3", "S1"));
        int place = 0;
        for (const char* name : {"S0", "S1", "S0 2", "S1 2", "S0 3", "S1 3"})
            EXPECT_THAT(from_centre(host.layer(name)), helix(place++)) << name << direct;
        host.play("undo");
        EXPECT_THAT(host.layer_names(), ElementsAre("S0", "S1"));
        EXPECT_EQ(host.state()["undo"], Json::array());
    }
    // Through the command, "Repeat Sequentially" moves each duplicate to the end.
    minihost::HostOptions options;
    options.without = {"layer-suite-10"};
    PluginHost host(scene_of(solids(2)), options);
    host.play("open\nset repeat=on\nset repeat.count=2\nset repeat.sequentially=on\nclick apply");
    EXPECT_THAT(host.layer_names(), ElementsAre("S0", "S1", "S0 2", "S1 2", "S0 3", "S1 3"));
}

TEST(Apply, FitsFromTheScalesBeforeTheFirstFit) {
    PluginHost host(scene_of({solid("Wide", 200, 100), solid("Other", 20, 20)}));
    const auto scale = [&] { return host.layer("Wide").transform.scale; };
    // 480 to the right, four fifths of the right half of a 200 wide layer extend beyond 500.
    host.play("open\nselect Wide\nset distance.min=480\nset distance.max=480\nset scale-to-fit=on");
    host.play("click apply");
    EXPECT_NEAR(scale()[0], 19.9, 0.2); // a little less: the wall is curved
    EXPECT_EQ(scale()[0], scale()[1]);
    const double fitted = scale()[0];
    host.play("click apply");
    EXPECT_EQ(scale()[0], fitted);
    host.play("set distance.min=0\nset distance.max=0\nclick apply");
    EXPECT_EQ(scale()[0], 100);
    host.play("set distance.min=480\nset distance.max=480\nclick apply");
    EXPECT_EQ(scale()[0], fitted);
    // Deselected layers are forgotten; the first Apply without a fit restores the others.
    host.play("select Wide Other\nclick apply\nset scale-to-fit=off\nclick apply");
    EXPECT_EQ(scale()[0], 100);
    EXPECT_EQ(host.layer("Other").transform.scale[0], 100);

    host.play("set scale-to=on\nset scale-to.size=50\nclick apply");
    EXPECT_THAT(scale(), Near(25, 50, 100));
}

TEST(Apply, AddsTheStartingValueAndTheCentre) {
    PluginHost host(scene_of(solids(1)));
    host.play("open\nset start.x=10\nset start.y=20.5\nset start.z=-30\nclick apply");
    EXPECT_THAT(host.layer("S0").transform.position, Near(870, 420.5, -30));
    host.play("set use-comp-center=off\nclick apply");
    EXPECT_THAT(host.layer("S0").transform.position, Near(370, 20.5, -30));
}

TEST(Apply, SetsKeysAtTheCurrentTime) {
    PluginHost host(scene_of({solid(
        "Card", 10, 10, R"("keyframes": {"position": [{"time": 0, "value": [1, 2, 3]}]})")}));
    host.play("open\ntime 2\nset keys.scale=on\nclick apply");
    const Layer& card = host.layer("Card");
    const auto keys = *card.keys_of(minihost::Stream::Position);
    ASSERT_EQ(keys.size(), 2u); // writing a value to a stream with keys sets a key
    EXPECT_THAT(keys[0].value, ElementsAre(1, 2, 3));
    EXPECT_EQ(keys[1].time, 2);
    EXPECT_THAT(keys[1].value, Near(860, 400, 0));
    EXPECT_EQ(card.keys_of(minihost::Stream::Scale)->size(), 1u);
    EXPECT_THAT(*card.keys_of(minihost::Stream::Orientation), IsEmpty());
}

TEST(Apply, MeasuresTextByItsNeighbourOrTheComposition) {
    const std::string title = R"({"name": "Title", "kind": "text", "three_d": true})";
    const struct {
        std::vector<std::string> layers;
        const char* crop;
        double width, height; // its size in pixels
    } cases[] = {{{solid("A", 300, 50), solid("B", 40, 400), title}, "on", 40, 400},
                 {{solid("A", 100, 50), solid("B", 50, 100), title}, "on", 100, 50},
                 {{solid("A", 300, 50), title}, "off", 1000, 800},
                 {{title}, "", 1000, 800}}; // without another layer the box cannot be clicked
    for (const auto& c : cases) {
        PluginHost host(scene_of(c.layers));
        host.play("open\nset scale-to=on\nset scale-to.size=100");
        if (*c.crop) host.play(std::string("set crop-text=") + c.crop);
        host.play("click apply");
        EXPECT_THAT(host.layer("Title").transform.scale,
                    Near(100 * 100 / c.width, 100 * 100 / c.height, 100, 1e-4));
    }
}

TEST(Apply, WithoutAnythingToPlaceLeavesNoStep) {
    PluginHost host(scene_of(solids(1)));
    // Enabled by the idle call before, clicked before the next one.
    host.play("open\ndeselect\nclick apply");
    EXPECT_EQ(host.state()["undo"], Json::array());
    host.play("select S0\nidle\nactive footage\nclick apply");
    EXPECT_EQ(host.state()["undo"], Json::array());
    EXPECT_EQ(host.session.host().misuses(), 0); // no call on a null collection
}

TEST(Apply, PlacesLayersAtFinitePositionsWhateverTheTexts) {
    PluginHost host(scene_of(solids(2)));
    host.play(
        "open\nset angle.min=abc\nset angle.max=12abc\nset y-axis.min=nan\nset y-axis.max=\"\"");
    host.play("set size.x=1e30\nset size.z=-5\nset distance.min=inf\nclick apply");
    for (const char* name : {"S0", "S1"})
        for (const double part : host.layer(name).transform.position)
            EXPECT_TRUE(std::isfinite(part)) << name;
}

} // namespace
