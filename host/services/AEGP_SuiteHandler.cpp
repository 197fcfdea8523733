#include "host/services/AEGP_SuiteHandler.h"

#include <cstring>

AEGP_SuiteHandler::AEGP_SuiteHandler(SPBasicSuite* basic) : _basic(basic) {
    if (!_basic) MissingSuiteError();
}

AEGP_SuiteHandler::~AEGP_SuiteHandler() {
    ReleaseAllSuites();
}

const void* AEGP_SuiteHandler::LoadSuite(const char* name, A_long version) {
    for (std::size_t i = 0; i < _used; ++i)
        if (_slots[i].version == version &&
            (_slots[i].name == name || std::strcmp(_slots[i].name, name) == 0))
            return _slots[i].suite;

    const void* suite = nullptr;
    if (_used == _slots.size() || _basic->AcquireSuite(name, version, &suite) != A_Err_NONE)
        MissingSuiteError();
    if (!suite) {
        // A success counts as a use, even without a table.
        _basic->ReleaseSuite(name, version);
        MissingSuiteError();
    }
    _slots[_used++] = {name, version, suite};
    return suite;
}

void AEGP_SuiteHandler::ReleaseAllSuites() {
    while (_used > 0) {
        const Slot& slot = _slots[--_used];
        _basic->ReleaseSuite(slot.name, slot.version);
    }
}

void AEGP_SuiteHandler::MissingSuiteError() {
    throw static_cast<int>(A_Err_MISSING_SUITE);
}
