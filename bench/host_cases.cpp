// Apply and the idle refresh beside the bare calls that they make of the host.

#include "bench/Figures.h"
#include "bench/Recording.h"
#include "bench/Rig.h"

#include <algorithm>

namespace bench {

namespace {

struct Setting {
    int id;
    const char* value;
};

struct Mode {
    const char* name;
    std::vector<Setting> settings;
};

const std::vector<Mode>& modes() {
    static const std::vector<Mode> all{
        {"plain", {}},
        {"random order, fit, outward", {{521, "on"}, {527, "on"}, {506, "on"}}},
        {"repeat once", {{528, "on"}, {529, "1"}}},
        {"keys", {{524, "on"}, {525, "on"}, {526, "on"}, {500, "on"}}},
    };
    return all;
}

// With the panel open and set, and what happens only the first time behind it.
std::unique_ptr<Rig> ready_to_apply(const Mode& mode, int layers, Rig::Plugin plugin) {
    auto rig = std::make_unique<Rig>(cards(layers), plugin);
    rig->open();
    for (const Setting& it : mode.settings) rig->set(it.id, it.value);
    rig->apply();
    rig->undo_for_good();
    return rig;
}

std::unique_ptr<Rig> ready_to_idle(int layers, Rig::Plugin plugin) {
    auto rig = std::make_unique<Rig>(cards(layers), plugin);
    rig->open();
    rig->visit([&] { rig->idle(); });
    return rig;
}

// What the plug-in calls, made bare on a host of its own.
class Bare {
  public:
    template <typename Operation>
    Bare(Rig& recorded, int layers, const Operation& operation)
        : _rig(cards(layers), Rig::Plugin::none), _replay(_recording, _rig.host()) {
        _recording.start(recorded.host());
        operation(recorded);
        _recording.stop();
    }

    double run() {
        _replay.prepare();
        const double start = processor_seconds();
        _rig.visit([&] { _replay.run(); });
        const double seconds = processor_seconds() - start;
        _replay.check();
        return seconds;
    }
    Rig& rig() { return _rig; }

  private:
    Recording _recording;
    Rig _rig;
    Replay _replay;
};

Pair apply_pair(const Mode& mode, int layers) {
    std::shared_ptr<Bare> bare;
    {
        const auto recorded = ready_to_apply(mode, layers, Rig::Plugin::recorded);
        bare = std::make_shared<Bare>(*recorded, layers, [](Rig& rig) { rig.apply(); });
    }
    std::shared_ptr<Rig> rig = ready_to_apply(mode, layers, Rig::Plugin::direct);
    return {[rig] {
                const double seconds = seconds_of([&] { rig->apply(); });
                rig->undo_for_good();
                return seconds;
            },
            [bare] {
                const double seconds = bare->run();
                bare->rig().undo_for_good();
                return seconds;
            }};
}

Pair idle_pair(int layers) {
    const auto operation = [](Rig& rig) { rig.visit([&] { rig.idle(); }); };
    std::shared_ptr<Bare> bare;
    {
        const auto recorded = ready_to_idle(layers, Rig::Plugin::recorded);
        bare = std::make_shared<Bare>(*recorded, layers, operation);
    }
    std::shared_ptr<Rig> rig = ready_to_idle(layers, Rig::Plugin::direct);
    return {[rig, operation] { return seconds_of([&] { operation(*rig); }); },
            [bare] { return bare->run(); }};
}

constexpr double quarter_more = 1.25;
constexpr int layer_counts[] = {1, 10, 100, 1000, 10000, 100000};

int turns_for(long layers) {
    return static_cast<int>(std::clamp(200000 / layers, 5l, 201l));
}

} // namespace

std::vector<Case> apply_cases() {
    std::vector<Case> cases;
    for (const Mode& mode : modes())
        for (const int layers : layer_counts)
            cases.push_back(
                {std::string("apply: ") + mode.name, layers, turns_for(layers), quarter_more,
                 [&mode, layers] { return apply_pair(mode, layers); },
                 [&mode, layers] { ready_to_apply(mode, layers, Rig::Plugin::direct); }});
    return cases;
}

std::vector<Case> idle_cases() {
    std::vector<Case> cases;
    for (const int layers : layer_counts)
        cases.push_back({"idle", layers, turns_for(layers), quarter_more,
                         [layers] { return idle_pair(layers); },
                         [layers] { ready_to_idle(layers, Rig::Plugin::direct); }});
    return cases;
}

} // namespace bench
