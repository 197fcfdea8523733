// A plug-in whose entry function acquires a suite, registers a death hook and fails with 7, or
// throws with TEST_PLUGIN_THROWS in the environment.

#include "sdk/Host.h"

#include <cstdlib>
#include <stdexcept>

namespace {

SPBasicSuite* basic;

A_Err on_death(AEGP_GlobalRefcon, AEGP_DeathRefcon) {
    return basic->ReleaseSuite(kAEGPRegisterSuite, kAEGPRegisterSuiteVersion);
}

} // namespace

extern "C" __attribute__((visibility("default"))) A_Err
PluginEntry(SPBasicSuite* given, A_long, A_long, AEGP_PluginID id, AEGP_GlobalRefcon*) {
    basic = given;
    const void* table = nullptr;
    basic->AcquireSuite(kAEGPRegisterSuite, kAEGPRegisterSuiteVersion, &table);
    const auto* suite = static_cast<const AEGP_RegisterSuite6*>(table);
    suite->AEGP_RegisterDeathHook(id, on_death, nullptr);
    if (std::getenv("TEST_PLUGIN_THROWS")) throw std::runtime_error("from the entry function");
    return 7;
}
