// How dialog and menu follow the selection, and the pop-up follows the cameras.

#include "tests/host/entry/PluginTest.h"

namespace {

using testing::ElementsAre;

TEST(Selection, EnablesMenuAndDialogForPlaceableLayers) {
    const struct {
        const char* layer;
        bool placeable;
    } cases[] = {
        {R"({"name": "L", "kind": "solid", "three_d": true, "source": {"width": 1, "height": 1}})",
         true},
        {R"({"name": "L", "kind": "footage", "three_d": true, "source": {"width": 1, "height": 1}})",
         true},
        {R"({"name": "L", "kind": "text", "three_d": true})", true},
        {R"({"name": "L", "kind": "shape", "three_d": true})", true},
        {R"({"name": "L", "kind": "solid", "source": {"width": 1, "height": 1}})", false},
        {R"({"name": "L", "kind": "text"})", false},
        {R"({"name": "L", "kind": "shape"})", false},
        {R"({"name": "L", "kind": "camera", "three_d": true})", false},
        {R"({"name": "L", "kind": "light", "three_d": true})", false},
    };
    for (const auto& c : cases) {
        PluginHost host(scene_of({c.layer, solid("Other"), camera("Camera")}));
        host.play("open\nselect L Camera\nidle");
        EXPECT_EQ(host.state()["menu"]["enabled"], c.placeable) << c.layer;
        EXPECT_EQ(host.control("size.x")["enabled"], c.placeable) << c.layer;
    }
}

TEST(Selection, IsFollowedAtTheNextIdleCall) {
    PluginHost host(scene_of({solid("S")}));
    host.play("open");
    const auto enabled = [&] { return host.control("apply")["enabled"].get<bool>(); };
    const auto after = [&](const std::string& actions) {
        host.play(actions);
        return enabled();
    };
    EXPECT_TRUE(after("deselect")); // the plug-in has not seen it yet
    EXPECT_FALSE(after("idle"));
    EXPECT_TRUE(after("select S\nidle"));
    for (const char* item : {"footage", "none"}) {
        EXPECT_FALSE(after(std::string("active ") + item + "\nidle")) << item;
        EXPECT_TRUE(after("active composition\nidle"));
    }
    EXPECT_FALSE(after("remove S\nidle"));
    EXPECT_TRUE(after("undo\nidle"));
    EXPECT_EQ(host.session.host().misuses(), 0);
}

TEST(Selection, IdleDoesNotReadMoreThanItNeeds) {
    PluginHost host(scene_of({solid("A"), solid("B"), camera("C")}));
    host.play("open");
    host.new_calls();
    host.play("idle");
    std::map<std::string, int> counts;
    for (const std::string& call : host.new_calls()) ++counts[call];
    // Twice through the three selected layers, once through the three layers for cameras.
    EXPECT_EQ(counts["Collection.GetCollectionItemByIndex"], 6);
    EXPECT_EQ(counts["Layer.IsLayer3D"], 6);
    EXPECT_EQ(counts["Layer.GetLayerObjectType"], 6);
    EXPECT_EQ(counts["Layer.GetCompLayerByIndex"], 3);
    EXPECT_EQ(counts["Layer.GetLayerName"], 1);
    EXPECT_EQ(counts["Comp.GetNewCollectionFromCompSelection"], 1);
    EXPECT_EQ(counts["Collection.DisposeCollection"], 1);
}

// Some hosts make an idle call in the middle of one of the plug-in's calls.
TEST(Selection, ARefreshInsideARefreshLeavesNothingBehind) {
    for (const char* action : {"idle", "click apply"}) {
        for (std::size_t number = 1, calls = 1; number <= calls; ++number) {
            PluginHost host(scene_of({solid("S"), camera("C")}));
            host.play("open");
            calls = 0;
            host.session.host().on_call = [&](std::size_t) {
                if (++calls == number) host.session.host().idle();
            };
            host.play(action);
            host.session.host().on_call = {};
            host.play("idle\nclick apply");
            EXPECT_THAT(host.session.unload(), testing::IsEmpty())
                << "an idle call at call " << number << " of " << action;
        }
    }
}

TEST(Cameras, ArePickedAndKeptByTheirLayer) {
    PluginHost host(scene_of({solid("S"), camera("One"), camera("Two")}));
    const auto entries = [&] { return host.control("camera")["entries"]; };
    const auto chosen = [&] { return host.control("camera")["value"]; };
    host.play("open");
    EXPECT_EQ(entries(), Json({"One", "Two"}));
    EXPECT_EQ(chosen(), "One");
    host.play("set orientation.towards-camera=on\nset camera=Two");
    host.play("rename Two Second\nidle");
    EXPECT_EQ(entries(), Json({"One", "Two"})) << "a name alone changes nothing";
    host.play("add-camera Three\nidle");
    EXPECT_EQ(entries(), Json({"Three", "One", "Second"}));
    EXPECT_EQ(chosen(), "Second");
    host.play("move Second 0\nidle");
    EXPECT_EQ(entries(), Json({"Second", "Three", "One"}));
    EXPECT_EQ(chosen(), "Second");
    host.play("remove Second\nidle");
    EXPECT_EQ(chosen(), "Three") << "the first, when the chosen one is gone";
    EXPECT_EQ(host.control("orientation.towards-camera")["value"], true);

    host.play("remove Three\nremove One\nidle");
    EXPECT_EQ(entries(), Json::array());
    EXPECT_EQ(chosen(), nullptr);
    EXPECT_EQ(host.control("orientation.towards-camera")["value"], false);
    EXPECT_EQ(host.control("orientation.towards-camera")["enabled"], false);
    EXPECT_EQ(host.control("orientation.none")["value"], true);

    host.play("add-camera \"K\xc3\xa4mera \xe2\x82\xac\"\nidle");
    EXPECT_EQ(entries(), Json({"K\xc3\xa4mera \xe2\x82\xac"}));
    EXPECT_EQ(host.control("orientation.towards-camera")["enabled"], true);
    host.play("active none\nidle");
    EXPECT_EQ(entries().size(), 1u) << "without a composition the last one's cameras stay";
}

} // namespace
