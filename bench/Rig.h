// A host with a scene of cards, and the plug-in in it or not: what the benchmarks work on.

#pragma once

#include "minihost/dialog/DialogDriver.h"
#include "minihost/suites/Host.h"

#include <memory>
#include <string>
#include <vector>

namespace bench {

// So many solids in 3D, of different sizes, and a camera below them; the solids are selected.
minihost::Scene cards(int count);

// Seconds of this thread on a processor: what else the machine does stays out of it.
double processor_seconds();

template <typename Operation>
double seconds_of(const Operation& operation) {
    const double start = processor_seconds();
    operation();
    return processor_seconds() - start;
}

class Rig {
  public:
    enum class Plugin {
        none,    // a host alone
        direct,  // as it is used
        recorded // by way of Recording's suites
    };
    // Throws std::runtime_error when the plug-in cannot be loaded.
    Rig(minihost::Scene scene, Plugin plugin);
    ~Rig();
    Rig(const Rig&) = delete;
    Rig& operator=(const Rig&) = delete;

    minihost::Host& host() { return _host; }
    minihost::DialogDriver& dialog_driver() { return *_driver; }

    // What a user does. Opening is the menu's command and one idle call.
    void open();
    void toggle();
    void close_panel();
    void set(int id, const std::string& value);
    // What the button sends when it has been clicked, without the click.
    void apply();
    void idle() { check(_host.idle()); }
    // Takes the last step back, and what could be done again out of the way.
    void undo_for_good();

    const minihost::PanelView& panel() const;
    NSView* content() const { return panel().container(); }
    // Runs something inside the host, within a pool of its own.
    void visit(const std::function<void()>& body);

  private:
    void check(A_Err error);
    std::unique_ptr<minihost::DialogDriver> _driver;
    minihost::Host _host;
};

} // namespace bench
