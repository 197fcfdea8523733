// The host's suites that the plug-in keeps from entry to unloading.

#pragma once

#include "sdk/Host.h"

extern SPBasicSuite* sSPBasic;            // set by the plug-in's entry function
extern AEGP_PanelSuite1* sAEGPPanelSuite; // null on a host without workspace panels
extern PFAppSuite6* sPFAppSuite; // null on a host without interface colours: all are black then

namespace adm {

// Acquires the panel suite, then the app suite, from sSPBasic. Suites that the host lacks are null.
void acquireSuites();
// Releases the acquired suites, the panel suite first, and nulls the pointers.
void releaseSuites();

} // namespace adm

// One suite of a list to be acquired together.
struct _AcquireList {
    const char* name;
    std::int32_t version;
    const void** suite; // receives its table
};

// Acquires the suites in order, up to the first error, which it returns; all pointers are nulled
// first. 0 when all succeeded, 0x21416371 without a basic suite.
A_Err PIUSuitesAcquire(SPBasicSuite* basic, _AcquireList* list, int count);
// Releases, in the list's order, every suite whose pointer is set, and nulls it. Does nothing
// without a basic suite.
void PIUSuitesRelease(SPBasicSuite* basic, _AcquireList* list, int count);
