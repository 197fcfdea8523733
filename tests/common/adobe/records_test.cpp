// Records, and the indices from which the random order is drawn.

#include "common/adobe/LayerInfo.h"
#include "common/adobe/RemainingIndices.h"

#include <gtest/gtest.h>
#include <list>
#include <random>

namespace {

using Vector = math::TGeomVector3D<double>;

TEST(LayerInfo, MatrixTurnsAboutZThenYThenXAndShifts) {
    LayerInfo record;
    EXPECT_EQ(record.mat.flags(), 3);
    record.pos.val.three_d = {10, 20, 30};
    record.refresh_mat();
    EXPECT_EQ((record.mat * Vector(1, 2, 3)).z, 33);
    EXPECT_EQ(record.mat.flags(), 1);

    // x goes to y about z, stays there about y, and goes to z about x.
    record.orient.val.three_d = {90, 90, 90};
    record.refresh_mat();
    const Vector x = record.mat * Vector(1, 0, 0);
    EXPECT_NEAR(x.x, 10, 1e-12);
    EXPECT_NEAR(x.y, 20, 1e-12);
    EXPECT_NEAR(x.z, 31, 1e-12);
    const Vector z = record.mat * Vector(0, 0, 1);
    EXPECT_NEAR(z.x, 11, 1e-12);
}

TEST(LayerInfo, SortsByIndexAndKeepsEquals) {
    std::list<LayerInfo> layers(4);
    int n = 0;
    for (LayerInfo& layer : layers) layer.index = n % 2, layer.sel_index = n++;
    layers.sort();
    std::vector<int> order;
    for (const LayerInfo& layer : layers) order.push_back(layer.sel_index);
    EXPECT_EQ(order, (std::vector<int>{0, 2, 1, 3}));
}

TEST(RemainingIndices, AreTakenAsFromAListThatIsErasedFrom) {
    std::mt19937_64 random(1);
    for (const std::size_t count : {0, 1, 2, 3, 7, 8, 9, 64, 1000}) {
        std::vector<std::size_t> plain(count);
        for (std::size_t i = 0; i < count; ++i) plain[i] = i;
        RemainingIndices remaining(count);
        while (!plain.empty()) {
            ASSERT_EQ(remaining.size(), plain.size());
            const std::size_t place = random() % plain.size();
            ASSERT_EQ(remaining.take(place), plain[place]);
            plain.erase(plain.begin() + static_cast<long>(place));
        }
        EXPECT_EQ(remaining.size(), 0u);
    }
}

} // namespace
