// Its command crashes after the active item was footage twice.

#include "plugin.h"

#include <cstdlib>

struct Broken : Plugin {
    A_Err on_command() override {
        if (_looks == 2) std::abort();
        return Plugin::on_command();
    }
    A_Err on_idle() override {
        const Items items;
        AEGP_ItemH item = nullptr;
        AEGP_ItemType type = AEGP_ItemType_COMP;
        if (!items || items->AEGP_GetActiveItem(&item) || !item ||
            items->AEGP_GetItemType(item, &type))
            return 0;
        const bool looks = type == AEGP_ItemType_FOOTAGE;
        if (looks && !_looked && _looks < 2) ++_looks;
        _looked = looks;
        return 0;
    }

    int _looks = 0;
    bool _looked = false;
};
PLUGIN_IS(Broken)
