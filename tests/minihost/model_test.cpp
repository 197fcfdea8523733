// The scene in memory: order and names of layers, values over time, undo.

#include "minihost/model/Document.h"

#include <gmock/gmock.h>
#include <random>
#include <set>

namespace minihost {
namespace {

using testing::ElementsAre;

Layer solid(const std::string& name) {
    Layer layer;
    layer.name = name;
    layer.three_d = true;
    layer.size = {100, 50};
    return layer;
}

Document document_of(std::initializer_list<const char*> names) {
    Scene scene;
    for (const char* name : names)
        scene.insert(std::make_unique<Layer>(solid(name)), scene.layer_count());
    return Document(std::move(scene));
}

std::vector<std::string> names(const Document& document) {
    std::vector<std::string> all;
    for (const Layer* layer : document.scene().layers()) all.push_back(layer->name);
    return all;
}

TEST(LayerOrder, AgreesWithAPlainVectorUnderRandomEdits) {
    std::mt19937 random(7);
    LayerOrder order;
    std::vector<LayerId> plain, out;
    for (LayerId next = 1; next <= 3000;) {
        const std::uint32_t dice = random() % 4;
        if (dice < 2 || plain.empty()) {
            const bool again = dice == 0 && !out.empty();
            const LayerId id = again ? out.back() : next++;
            if (again) out.pop_back();
            const std::size_t index = random() % (plain.size() + 1);
            order.insert(id, index);
            plain.insert(plain.begin() + static_cast<std::ptrdiff_t>(index), id);
        } else if (dice == 2) {
            const std::size_t index = random() % plain.size();
            out.push_back(plain[index]);
            order.remove(plain[index]);
            plain.erase(plain.begin() + static_cast<std::ptrdiff_t>(index));
        }
        ASSERT_EQ(order.size(), plain.size());
        if (plain.empty()) continue;
        const std::size_t probe = random() % plain.size();
        ASSERT_EQ(order.at(probe), plain[probe]);
        ASSERT_EQ(order.index_of(plain[probe]), probe);
    }
    EXPECT_EQ(order.ids(), plain);
    for (const LayerId id : out) EXPECT_FALSE(order.contains(id));
}

TEST(LayerNames, DuplicatesGetTheFirstFreeNumber) {
    struct Case {
        std::vector<std::string> taken;
        std::string original, expected;
    };
    for (const Case& it : std::vector<Case>{{{"Card"}, "Card", "Card 2"},
                                            {{"Card", "Card 2", "Card 4"}, "Card", "Card 3"},
                                            {{"Card 1"}, "Card 1", "Card 2"},
                                            {{"Card 1", "Card 2"}, "Card 2", "Card 3"},
                                            {{"A 07"}, "A 07", "A 07 2"},
                                            {{" 7"}, " 7", " 7 2"},
                                            {{""}, "", " 2"},
                                            {{"99"}, "99", "99 2"}}) {
        LayerNames names;
        for (const std::string& name : it.taken) names.add(name);
        EXPECT_EQ(names.for_duplicate_of(it.original), it.expected) << it.original;
    }
    LayerNames names;
    for (const char* name : {"Card", "Card 2", "Card 2", "Card 3"}) names.add(name);
    EXPECT_EQ(names.for_duplicate_of("Card"), "Card 4");
    names.remove("Card 2");
    EXPECT_EQ(names.for_duplicate_of("Card"), "Card 4") << "one Card 2 is still there";
    names.remove("Card 2");
    EXPECT_EQ(names.for_duplicate_of("Card"), "Card 2");
}

TEST(Layer, InterpolatesBetweenKeysAndHoldsOutsideThem) {
    Layer layer = solid("A");
    *layer.keys_of(Stream::Position) = {{1, {0, 10, 0}}, {3, {100, 10, -8}}};
    *layer.keys_of(Stream::RotationY) = {{2, {90, 0, 0}}};
    layer.transform.rotation = {1, 2, 3};
    EXPECT_EQ(value_of(layer, Stream::Position, 0), (Vec3{0, 10, 0}));
    EXPECT_EQ(value_of(layer, Stream::Position, 1.5), (Vec3{25, 10, -2}));
    EXPECT_EQ(value_of(layer, Stream::Position, 3), (Vec3{100, 10, -8}));
    EXPECT_EQ(value_of(layer, Stream::Position, 9), (Vec3{100, 10, -8}));
    EXPECT_EQ(value_of(layer, Stream::RotationX, 0)[0], 1);
    EXPECT_EQ(value_of(layer, Stream::RotationY, 0)[0], 90);
    EXPECT_EQ(value_of(layer, Stream::RotationZ, 0)[0], 3);
}

TEST(Layer, TimesAreRoundedToTheNearestTick) {
    EXPECT_EQ(to_ticks(0.0008), 0);
    EXPECT_EQ(to_ticks(0.0009), 1);
    EXPECT_EQ(to_ticks(-0.0009), -1);
    EXPECT_EQ(to_ticks(1.0 / 3), 200);
    EXPECT_EQ(to_ticks(1e300), 1'800'000'000);
}

TEST(Document, SetsTheKeyAtTheTickAndTheValueOnlyWithoutKeys) {
    Document document = document_of({"A"});
    const LayerId id = document.scene().layer_at(0).id;
    const Layer& layer = document.scene().layer_at(0);
    document.set_value(id, Stream::Position, {1, 2, 3}, 600);
    EXPECT_EQ(layer.transform.position, (Vec3{1, 2, 3}));

    EXPECT_EQ(document.insert_key(id, Stream::Position, 600), 0u);
    EXPECT_EQ(document.insert_key(id, Stream::Position, 600), 0u) << "the key that is there";
    document.set_value(id, Stream::Position, {5, 2, 3}, 600);
    document.set_value(id, Stream::Position, {9, 2, 3}, 1800);
    EXPECT_EQ(document.insert_key(id, Stream::Position, 1200), 1u);
    EXPECT_EQ(layer.transform.position, (Vec3{1, 2, 3}));
    EXPECT_THAT(
        *layer.keys_of(Stream::Position),
        ElementsAre(Keyframe{1, {5, 2, 3}}, Keyframe{2, {7, 2, 3}}, Keyframe{3, {9, 2, 3}}));

    for (int steps = 0; steps < 5; ++steps) ASSERT_TRUE(document.undo());
    EXPECT_EQ(layer.transform.position, (Vec3{}));
    EXPECT_TRUE(layer.keys_of(Stream::Position)->empty());
    EXPECT_FALSE(document.undo());
    while (document.redo()) {
    }
    EXPECT_EQ(value_of(layer, Stream::Position, 2.5), (Vec3{8, 2, 3}));
}

TEST(Document, AGroupIsOneStepAndAnEmptyOneNone) {
    Document document = document_of({"A", "B"});
    const LayerId a = document.scene().layer_at(0).id;
    document.begin_group("Empty");
    EXPECT_TRUE(document.end_group());
    EXPECT_FALSE(document.end_group());
    document.begin_group("Outer");
    document.begin_group("Inner");
    document.rename_layer(a, "C");
    document.end_group();
    document.move_layer(a, 1);
    EXPECT_FALSE(document.undo()) << "the group is open";
    document.end_group();
    document.rename_layer(a, "D");
    EXPECT_THAT(document.undo_names(), ElementsAre("Outer", "Rename Layer"));
    EXPECT_THAT(names(document), ElementsAre("B", "D"));
    document.undo();
    document.undo();
    EXPECT_THAT(names(document), ElementsAre("A", "B"));
    EXPECT_THAT(document.redo_names(), ElementsAre("Outer", "Rename Layer"));
    document.redo();
    EXPECT_THAT(names(document), ElementsAre("B", "C"));
    document.rename_layer(a, "E");
    EXPECT_TRUE(document.redo_names().empty()) << "a new change clears redo";
}

TEST(Document, UndoAndRedoBringBackLayersAndTheSelection) {
    Document document = document_of({"A", "B", "C"});
    const LayerId a = document.scene().layer_at(0).id;
    const LayerId b = document.scene().layer_at(1).id;
    const LayerId c = document.scene().layer_at(2).id;
    document.select({c, a, 0, c});
    document.begin_group("Duplicate and remove");
    document.duplicate_selection();
    EXPECT_THAT(names(document), ElementsAre("A 2", "A", "B", "C 2", "C"));
    const LayerId a2 = document.scene().layer_at(0).id;
    const LayerId c2 = document.scene().layer_at(3).id;
    EXPECT_GT(a2, c);
    EXPECT_THAT(document.scene().selection(), ElementsAre(a2, c2));
    document.remove_layer(b);
    document.remove_layer(c2);
    document.end_group();
    EXPECT_THAT(document.scene().selection(), ElementsAre(a2));

    document.undo();
    EXPECT_THAT(names(document), ElementsAre("A", "B", "C"));
    EXPECT_THAT(document.scene().selection(), ElementsAre(c, a, 0u, c));
    EXPECT_EQ(document.scene().find(a2), nullptr);
    document.redo();
    EXPECT_THAT(names(document), ElementsAre("A 2", "A", "C"));
    EXPECT_THAT(document.scene().selection(), ElementsAre(a2)) << "the same layer, the same number";
    document.undo();
    Layer camera = solid("Camera 1");
    const LayerId added = document.add_layer(camera, 0);
    EXPECT_GT(added, c2) << "numbers are never used twice";
}

TEST(Document, HasTheSameStateAfterUndoAndRedo) {
    Document document = document_of({"A", "B"});
    const LayerId a = document.scene().layer_at(0).id;
    std::set<std::uint64_t> states{document.state()}, revisions{document.revision()};
    const auto changed = [&] {
        return std::pair(states.insert(document.state()).second,
                         revisions.insert(document.revision()).second);
    };
    document.select({a});
    EXPECT_EQ(changed(), std::pair(false, false)) << "what is selected is no change";
    document.rename_layer(a, "C");
    const std::uint64_t renamed = document.state();
    EXPECT_EQ(changed(), std::pair(true, true));
    document.undo();
    EXPECT_EQ(changed(), std::pair(false, true)) << "the same state, but drawn again";
    document.redo();
    EXPECT_EQ(document.state(), renamed);
    document.undo();
    document.rename_layer(a, "C");
    EXPECT_EQ(changed(), std::pair(true, true)) << "another step that does the same";
    document.begin_group("Open");
    EXPECT_FALSE(changed().first);
    document.move_layer(a, 1);
    EXPECT_TRUE(changed().first) << "what is changed in an open group is changed";
}

// Nothing here may be quadratic.
TEST(Document, DuplicatesManyLayers) {
    Scene scene;
    for (int i = 0; i < 60000; ++i) scene.insert(std::make_unique<Layer>(solid("Card")), 0);
    Document document(std::move(scene));
    Selection all;
    for (const Layer* layer : document.scene().layers()) all.push_back(layer->id);
    document.select(all);
    document.duplicate_selection();
    EXPECT_EQ(document.scene().layer_count(), 120000u);
    EXPECT_EQ(document.scene().layer_at(119998).name, "Card 60001");
    document.undo();
    EXPECT_EQ(document.scene().layer_count(), 60000u);
    EXPECT_EQ(document.scene().selection(), all);
}

} // namespace
} // namespace minihost
