// The table of all checks.

#include "minihost/check/Groups.h"

namespace minihost {

namespace {

constexpr Check table[] = {
    {"load.exports", "The module exports its entry function and nothing else.", Needs::Nothing,
     check_exports},
    {"load.entry", "The module is loaded, and its entry function succeeds.", Needs::Nothing,
     check_entry},
    {"load.repeatedly", "A thousand loads and unloads leave no file, thread or mapping behind.",
     Needs::Start, check_loading_repeatedly},

    {"hooks.registered", "Every command has a text, a number of its own, a hook, and a menu hook.",
     Needs::Start, check_registered},
    {"hooks.idle-ends", "An idle call ends in time.", Needs::Start, check_idle_ends},
    {"hooks.return", "Every other hook and every control's action ends in time, without a crash.",
     Needs::Start, check_hooks_return},
    {"hooks.no-exceptions", "Nothing that is thrown leaves a hook or a control's action.",
     Needs::Life, check_plain<ViolationKind::HookException>},
    {"hooks.no-errors", "No hook returns an error when no call fails.", Needs::Life,
     check_plain<ViolationKind::HookError>},

    {"misuse.stale-handles", "No handle is used when what it stood for is no more.", Needs::Life,
     check_plain<ViolationKind::StaleHandle>},
    {"misuse.wrong-handles", "No handle is null, made up, or of another kind.", Needs::Life,
     check_plain<ViolationKind::WrongHandle>},
    {"misuse.arguments", "No pointer is null, no time has the scale 0.", Needs::Life,
     check_plain<ViolationKind::BadArgument>},
    {"misuse.unbalanced", "Nothing is given back or closed more often than taken or opened.",
     Needs::Life, check_plain<ViolationKind::Unbalanced>},
    {"misuse.late-registration", "Nothing is registered outside of the entry function.",
     Needs::Life, check_plain<ViolationKind::LateRegistration>},

    {"held.suites", "At unload every suite is released.", Needs::Life,
     check_plain<ViolationKind::HeldSuite>},
    {"held.streams", "At unload every stream is disposed of.", Needs::Life,
     check_plain<ViolationKind::HeldStream>},
    {"held.collections", "At unload every collection is disposed of.", Needs::Life,
     check_plain<ViolationKind::HeldCollection>},
    {"held.undo-groups", "No undo group is open when a hook is through.", Needs::Life,
     check_plain<ViolationKind::OpenUndoGroup>},
    {"held.memory", "Lives that follow each other do not take more and more memory.", Needs::Life,
     check_memory},

    {"missing.suites", "A host without optional suites, in all combinations, is served well.",
     Needs::Life, check_missing_optional},
    {"missing.any", "A host that lacks any one suite gets errors at most.", Needs::Life,
     check_missing_any},

    {"failing.entry", "Any call that fails while the plug-in starts does no harm.", Needs::Life,
     check_failing<Phase::Entry>},
    {"failing.open", "Any call that fails while the dialog opens does no harm.", Needs::Life,
     check_failing<Phase::Open>},
    {"failing.idle", "Any call that fails in an idle call does no harm.", Needs::Life,
     check_failing<Phase::Idle>},
    {"failing.apply", "Any call that fails while controls are used, in all modes, does no harm.",
     Needs::Life, check_failing<Phase::Apply>},
    {"failing.close", "Any call that fails while the dialog closes does no harm.", Needs::Life,
     check_failing<Phase::Close>},
    {"failing.death", "Any call that fails while the plug-in ends does no harm.", Needs::Life,
     check_failing<Phase::Death>},

    {"hostile.null-handles", "Null handles that are given with success do no harm.", Needs::Life,
     check_hostile<MisbehaviourKind::Handle>},
    {"hostile.counts", "Counts and indices that are negative or huge do no harm.", Needs::Life,
     check_hostile<MisbehaviourKind::Count>},
    {"hostile.sizes", "Sizes that are zero, negative or huge do no harm.", Needs::Life,
     check_hostile<MisbehaviourKind::Size>},
    {"hostile.names", "Names that are empty, long or no UTF-8 do no harm.", Needs::Life,
     check_hostile<MisbehaviourKind::Name>},
    {"hostile.numbers", "Values of streams that are infinite or no numbers do no harm.",
     Needs::Life, check_hostile<MisbehaviourKind::Value>},
    {"hostile.changing-scene", "A scene that changes between two calls does no harm.", Needs::Life,
     check_hostile<MisbehaviourKind::Scene>},

    {"random.actions", "Users who do anything with controls and layers do no harm.", Needs::Life,
     check_random_actions},
    {"random.events", "Users whose mouse and keys do anything do no harm.", Needs::Life,
     check_random_events},

    {"equal.calls", "Two equal runs at the same time of day make the same calls.", Needs::Life,
     check_equal_calls},
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
