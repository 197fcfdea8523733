// One run of a plug-in, from loading to unloading, in a host of its own.

#pragma once

#include "minihost/actions/Session.h"
#include "minihost/check/Child.h"
#include "minihost/check/Scenario.h"

#include <sstream>
#include <string>
#include <vector>

namespace minihost {

class PluginRun {
  public:
    // `scene` is the text of a scene file. The host's messages go to standard error.
    PluginRun(const std::string& plugin, const std::string& scene, HostOptions options,
              ChildProgress& progress);

    // False when the plug-in does not load; load_error() says why.
    bool load();
    const std::string& load_error() const { return _load_error; }
    // Plays a line of an action file. False when the action is not possible now.
    bool play(const std::string& line);
    void unload();
    // All parts of a scenario. No action is played if the plug-in does not load.
    void play(const Scenario& scenario);
    void play_part(const Scenario& scenario, std::size_t part);

    // Records calls from now on, as lines of the call log.
    void record_calls();
    const std::vector<std::string>& calls() const { return _calls; }

    Session& session() { return _session; }
    const std::vector<Violation>& violations() { return _session.host().violations(); }

  private:
    void report(const std::string& line);

    ChildProgress& _progress;
    std::string _plugin, _load_error;
    bool _loaded = false;
    int _lines_reported = 0;
    std::ostringstream _printed;
    std::vector<std::string> _calls;
    Session _session;
};

// "SUITE.CALL" of a line of the call log.
std::string call_name(const std::string& line);

// For transport between processes.
std::string violations_to_json(const std::vector<Violation>& violations);
std::vector<Violation> violations_from_json(const std::string& json);

// Plays a scenario in a new run and returns its violations as JSON.
std::string violations_of_run(const std::string& plugin, const std::string& scene,
                              HostOptions options, const Scenario& scenario,
                              ChildProgress& progress);

} // namespace minihost
