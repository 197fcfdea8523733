#include "ADMLibrary/HostPointers.h"

SPBasicSuite* sSPBasic = nullptr;
AEGP_PanelSuite1* sAEGPPanelSuite = nullptr;
PFAppSuite6* sPFAppSuite = nullptr;

namespace {

// Null if the host does not have it. The tables are only read, in spite of the type.
template <typename Suite>
Suite* acquire(const char* name, A_long version) {
    const void* suite = nullptr;
    if (!sSPBasic || sSPBasic->AcquireSuite(name, version, &suite) != A_Err_NONE) return nullptr;
    return static_cast<Suite*>(const_cast<void*>(suite));
}

template <typename Suite>
void release(Suite*& suite, const char* name, A_long version) {
    if (suite && sSPBasic) sSPBasic->ReleaseSuite(name, version);
    suite = nullptr;
}

} // namespace

namespace adm {

void acquireSuites() {
    sAEGPPanelSuite = acquire<AEGP_PanelSuite1>(kAEGPPanelSuite, kAEGPPanelSuiteVersion);
    sPFAppSuite = acquire<PFAppSuite6>(kPFAppSuite, kPFAppSuiteVersion);
}

void releaseSuites() {
    release(sAEGPPanelSuite, kAEGPPanelSuite, kAEGPPanelSuiteVersion);
    release(sPFAppSuite, kPFAppSuite, kPFAppSuiteVersion);
}

} // namespace adm

A_Err PIUSuitesAcquire(SPBasicSuite* basic, _AcquireList* list, int count) {
    constexpr A_Err kNoBasicSuite = 0x21416371;
    for (int i = 0; i < count; ++i) *list[i].suite = nullptr;
    if (!basic) return kNoBasicSuite;
    for (int i = 0; i < count; ++i) {
        const A_Err error = basic->AcquireSuite(list[i].name, list[i].version, list[i].suite);
        if (error != A_Err_NONE) return error;
    }
    return A_Err_NONE;
}

void PIUSuitesRelease(SPBasicSuite* basic, _AcquireList* list, int count) {
    if (!basic) return;
    for (int i = 0; i < count; ++i) {
        if (!*list[i].suite) continue;
        basic->ReleaseSuite(list[i].name, list[i].version);
        *list[i].suite = nullptr;
    }
}
