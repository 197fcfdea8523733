// The alert panels that were shown, and how they are answered when there is no user.
#pragma once

#include <AppKit/NSDisplayStandIn.h>

namespace cocoa {

struct AlertRecord {
    std::vector<NSShownAlert> shown;
    size_t next_answer = 1; // the button, from 1; for the next panel only
    bool skip_next = false; // the next one is not recorded
};

AlertRecord& alert_record();

} // namespace cocoa
