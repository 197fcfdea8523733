// A host whose suites a test calls as a plug-in's hook would.

#pragma once

#include "minihost/model/SceneReader.h"
#include "minihost/suites/BasicSuite.h"
#include "minihost/suites/Host.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace minihost {

inline const char* const sample_scene = R"({"format": "minihost scene 1",
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

class Suites : public testing::Test {
  protected:
    explicit Suites(HostOptions options = {})
        : host(
              parse_scene(sample_scene, "test"), std::move(options),
              [this](const std::string& line) { messages.push_back(line); }, blind_panels()) {}

    void inside(const std::function<void()>& body) { host.enter(body); }
    template <typename Table>
    const Table& suite(const char* name, A_long version) {
        const void* table = nullptr;
        EXPECT_EQ(basic_suite.AcquireSuite(name, version, &table), 0) << name;
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

} // namespace minihost
