#include "minihost/check/Checks.h"

#include "minihost/check/CheckFunctions.h"

namespace minihost {

namespace {

constexpr Check table[] = {
    {"load.exports", "The module exports its entry function and nothing else.", Prerequisite::None,
     check_exports},
    {"load.entry", "The module is loaded, and its entry function succeeds.", Prerequisite::None,
     check_entry},
    {"load.repeatedly", "A thousand loads and unloads leave no file, thread or mapping behind.",
     Prerequisite::Loads, check_loading_repeatedly},

    {"hooks.registered", "Every command has a text, a number of its own, a hook, and a menu hook.",
     Prerequisite::Loads, check_registered},
    {"hooks.idle-ends", "An idle call ends in time.", Prerequisite::Loads, check_idle_ends},
    {"hooks.return", "Every other hook and every control's action ends in time, without a crash.",
     Prerequisite::Loads, check_hooks_return},
    {"hooks.no-exceptions", "Nothing that is thrown leaves a hook or a control's action.",
     Prerequisite::CompletesRun, check_baseline<ViolationKind::HookException>},
    {"hooks.no-errors", "No hook returns an error when no call fails.", Prerequisite::CompletesRun,
     check_baseline<ViolationKind::HookError>},

    {"misuse.stale-handles", "No handle is used when what it stood for is no more.",
     Prerequisite::CompletesRun, check_baseline<ViolationKind::StaleHandle>},
    {"misuse.wrong-handles", "No handle is null, made up, or of another kind.",
     Prerequisite::CompletesRun, check_baseline<ViolationKind::WrongHandle>},
    {"misuse.arguments", "No pointer is null, no time has the scale 0.", Prerequisite::CompletesRun,
     check_baseline<ViolationKind::BadArgument>},
    {"misuse.unbalanced", "Nothing is given back or closed more often than taken or opened.",
     Prerequisite::CompletesRun, check_baseline<ViolationKind::Unbalanced>},
    {"misuse.late-registration", "Nothing is registered outside of the entry function.",
     Prerequisite::CompletesRun, check_baseline<ViolationKind::LateRegistration>},

    {"held.suites", "At unload every suite is released.", Prerequisite::CompletesRun,
     check_baseline<ViolationKind::HeldSuite>},
    {"held.streams", "At unload every stream is disposed of.", Prerequisite::CompletesRun,
     check_baseline<ViolationKind::HeldStream>},
    {"held.collections", "At unload every collection is disposed of.", Prerequisite::CompletesRun,
     check_baseline<ViolationKind::HeldCollection>},
    {"held.undo-groups", "No undo group is open when a hook is through.",
     Prerequisite::CompletesRun, check_baseline<ViolationKind::OpenUndoGroup>},
    {"held.memory", "Lives that follow each other do not take more and more memory.",
     Prerequisite::CompletesRun, check_memory},

    {"missing.suites", "A host without optional suites, in all combinations, is served well.",
     Prerequisite::CompletesRun, check_missing_optional},
    {"missing.any", "A host that lacks any one suite gets errors at most.",
     Prerequisite::CompletesRun, check_missing_any},

    {"failing.entry", "Any call that fails while the plug-in starts does no harm.",
     Prerequisite::CompletesRun, check_failing<Phase::Entry>},
    {"failing.open", "Any call that fails while the dialog opens does no harm.",
     Prerequisite::CompletesRun, check_failing<Phase::Open>},
    {"failing.idle", "Any call that fails in an idle call does no harm.",
     Prerequisite::CompletesRun, check_failing<Phase::Idle>},
    {"failing.apply", "Any call that fails while controls are used, in all modes, does no harm.",
     Prerequisite::CompletesRun, check_failing<Phase::Apply>},
    {"failing.close", "Any call that fails while the dialog closes does no harm.",
     Prerequisite::CompletesRun, check_failing<Phase::Close>},
    {"failing.death", "Any call that fails while the plug-in ends does no harm.",
     Prerequisite::CompletesRun, check_failing<Phase::Death>},

    {"hostile.null-handles", "Null handles that are given with success do no harm.",
     Prerequisite::CompletesRun, check_hostile<MisbehaviourKind::Handle>},
    {"hostile.counts", "Counts and indices that are negative or huge do no harm.",
     Prerequisite::CompletesRun, check_hostile<MisbehaviourKind::Count>},
    {"hostile.sizes", "Sizes that are zero, negative or huge do no harm.",
     Prerequisite::CompletesRun, check_hostile<MisbehaviourKind::Size>},
    {"hostile.names", "Names that are empty, long or no UTF-8 do no harm.",
     Prerequisite::CompletesRun, check_hostile<MisbehaviourKind::Name>},
    {"hostile.numbers", "Values of streams that are infinite or no numbers do no harm.",
     Prerequisite::CompletesRun, check_hostile<MisbehaviourKind::Value>},
    {"hostile.changing-scene", "A scene that changes between two calls does no harm.",
     Prerequisite::CompletesRun, check_hostile<MisbehaviourKind::Scene>},

    {"random.actions", "Users who do anything with controls and layers do no harm.",
     Prerequisite::CompletesRun, check_random_actions},
    {"random.events", "Users whose mouse and keys do anything do no harm.",
     Prerequisite::CompletesRun, check_random_events},

    {"equal.calls", "Two equal runs at the same time of day make the same calls.",
     Prerequisite::CompletesRun, check_equal_calls},
};

} // namespace

std::span<const Check> checks() {
    return table;
}

const Check* find_check(std::string_view id) {
    for (const Check& it : table)
        if (it.id == id) return &it;
    return nullptr;
}

} // namespace minihost
