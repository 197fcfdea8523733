// The plug-in in its own host with a scene: tests write lines of an action file and read scene,
// state and calls.

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

// Unloads the plug-in when it goes out of scope.
class PluginHost {
  public:
    explicit PluginHost(const std::string& scene, minihost::HostOptions options = {},
                        bool load = true);
    ~PluginHost();

    // Lines of an action file. Throws ActionError.
    void play(const std::string& actions);
    Json state();
    // The dialog's control of that name in the output of `state`, or null.
    Json control(const std::string& name);

    const minihost::Layer& layer(const std::string& name) const;
    std::vector<std::string> layer_names() const; // top first
    minihost::Document& document() { return session.host().document; }

    // The plug-in's calls since the last query, except those that acquire and release suites:
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
// A 3D solid; `more` adds fields.
std::string solid(const std::string& name, int width = 100, int height = 100,
                  const std::string& more = "");
std::string camera(const std::string& name, const std::string& more = "");
// A layer's position relative to the middle of the composition.
minihost::Vec3 from_centre(const minihost::Layer& layer);

testing::Matcher<minihost::Vec3> Near(double x, double y, double z, double tolerance = 1e-9);
