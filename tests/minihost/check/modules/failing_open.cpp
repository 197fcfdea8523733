// Its command, chosen for the first time, keeps a suite when a call fails in between.

#include "careless.h"

#include <utility>

struct Broken : Plugin {
    A_Err on_entry() override {
        is_first = true;
        return 0;
    }
    A_Err on_command() override {
        if (std::exchange(is_first, false))
            if (const A_Err error = keep_a_suite_on_failure()) return error;
        return arrange();
    }
    bool is_first = true;
};
PLUGIN_IS(Broken)
