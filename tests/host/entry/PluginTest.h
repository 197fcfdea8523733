// The plug-in in a host of its own, with a scene: actions go in as lines of an action file, scene,
// state and calls come out.

#pragma once

#include "minihost/actions/Session.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

using Json = nlohmann::json;

// A host that ran out of scope has unloaded the plug-in.
class PluginHost {
  public:
    explicit PluginHost(const std::string& scene, minihost::HostOptions options = {},
                        bool load = true);
    ~PluginHost();

    // Lines of an action file. Throws ActionError.
    void play(const std::string& actions);
    Json state();
    // A control of the dialog by its name, as `state` tells it; null if it is not there.
    Json control(const std::string& name);

    const minihost::Layer& layer(const std::string& name) const;
    std::vector<std::string> layer_names() const; // top first
    minihost::Document& document() { return session.host().document; }

    // What the plug-in called since the last asking, without acquiring and releasing suites:
    // "Stream.SetStreamValue 1", where 1 is a stream's number.
    std::vector<std::string> new_calls();

    std::vector<std::string> messages;
    std::ostringstream out;
    minihost::Session session;

  private:
    std::vector<std::string> _calls;
};

// A composition of 1000 x 800 pixels with these layers and everything selected.
std::string scene_of(const std::vector<std::string>& layers);
// A 3D solid; `more` are further fields.
std::string solid(const std::string& name, int width = 100, int height = 100,
                  const std::string& more = "");
std::string camera(const std::string& name, const std::string& more = "");
// Where a layer stands from the middle of the composition.
minihost::Vec3 from_centre(const minihost::Layer& layer);

testing::Matcher<minihost::Vec3> Near(double x, double y, double z, double tolerance = 1e-9);
