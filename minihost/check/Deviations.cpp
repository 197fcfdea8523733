#include "minihost/check/Deviations.h"

#include "minihost/check/PluginRun.h"

namespace minihost {

void report_deviations(const ChildResult& result, const std::set<ViolationKind>& known,
                       const std::string& example, ChildProgress& progress, Findings& findings) {
    progress.checkpoint(example);
    ++progress.runs;
    findings.count_run();
    if (result.kind == ChildResult::Kind::Crashed)
        return findings.add(Outcome::Crash, describe_failure(result), example);
    if (result.kind == ChildResult::Kind::TimedOut)
        return findings.add(Outcome::Fail, describe_failure(result), example);
    for (const Violation& violation : violations_from_json(result.output))
        if (!known.contains(violation.kind)) findings.add(Outcome::Fail, violation.text, example);
    if (result.leaked && !known.contains(ViolationKind::Leak))
        findings.add(Outcome::Fail, "memory is not freed at the end", example);
}

void note_small_scene(const Target& target, Findings& findings) {
    if (!target.small_scene_note.empty()) findings.note(target.small_scene_note);
}

} // namespace minihost
