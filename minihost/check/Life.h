// One life of a plug-in in a host of its own, with everything that it does wrong noted; and how a
// life is told from one process to another.

#pragma once

#include "minihost/actions/Session.h"
#include "minihost/check/Child.h"
#include "minihost/check/Scenario.h"

#include <sstream>
#include <string>
#include <vector>

namespace minihost {

class Life {
  public:
    // `scene` is a scene file's text. Standard error gets the host's messages.
    Life(const std::string& plugin, const std::string& scene, HostOptions options, Place& place);

    // False when the plug-in could not start; why_not() tells then. Faults are noted anyway.
    bool load();
    const std::string& why_not() const { return _why_not; }
    // Plays a line of an action file; one that cannot be done at this moment is passed over, and
    // false is given.
    bool play(const std::string& line);
    void unload();
    // From the load to the unloading; nothing is played when the plug-in does not start.
    void live(const Scenario& scenario);
    // The parts of it: 0 is the loading, then come the steps, the unloading is the last.
    void live_part(const Scenario& scenario, std::size_t part);
    static std::size_t parts(const Scenario& scenario) { return scenario.steps.size() + 2; }
    static Phase phase(const Scenario& scenario, std::size_t part);

    // From now on calls are kept, as lines of the call log.
    void record_calls();
    const std::vector<std::string>& calls() const { return _calls; }

    Session& session() { return _session; }
    const std::vector<Violation>& violations() { return _session.host().violations(); }

  private:
    void say(const std::string& line);

    Place& _place;
    std::string _plugin, _why_not;
    bool _loaded = false;
    int _lines_said = 0;
    std::ostringstream _printed;
    std::vector<std::string> _calls;
    Session _session;
};

// "SUITE.CALL" of a line of the call log.
std::string call_in(const std::string& line);

// Faults as text, and back.
std::string violations_text(const std::vector<Violation>& violations);
std::vector<Violation> violations_in(const std::string& text);

} // namespace minihost
