// What alert panels said, and how they are answered when there is no user.
#pragma once

#include <string>
#include <vector>

namespace cocoa {

struct ShownAlert {
    std::string title;
    std::string message;
    std::vector<std::string> buttons;
};

struct AlertRecord {
    std::vector<ShownAlert> shown;
    size_t next_answer = 1;   // the button, from 1, of the next panel alone
    bool skip_next = false;   // the next one is not remembered
    bool interactive = false; // runs the panel even without a user
};

AlertRecord& alert_record();

} // namespace cocoa
