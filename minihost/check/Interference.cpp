#include "minihost/check/Interference.h"

#include "minihost/check/Groups.h"
#include "minihost/check/Life.h"

namespace minihost {

void tell_disturbed(const Ending& ending, const std::set<ViolationKind>& known,
                    const std::string& example, Findings& findings) {
    switch (ending.kind) {
    case Ending::Kind::Crashed:
        return findings.add(Outcome::Crash, death_of(ending), example);
    case Ending::Kind::TimedOut:
        return findings.add(Outcome::Fail, death_of(ending), example);
    case Ending::Kind::Done:
        break;
    }
    for (const Violation& violation : violations_in(ending.result))
        if (!known.contains(violation.kind)) findings.add(Outcome::Fail, violation.text, example);
    if (ending.leaked && !known.contains(ViolationKind::Leak))
        findings.add(Outcome::Fail, "memory is not freed at the end", example);
}

} // namespace minihost
