// The host's suites for the length of one function: acquired when first used, released when the
// handler goes out of scope.

#pragma once

#include "sdk/Host.h"

#include <array>

class AEGP_SuiteHandler {
  public:
    // Throws the int 516 if there is no basic suite.
    explicit AEGP_SuiteHandler(SPBasicSuite* basic);
    ~AEGP_SuiteHandler();
    AEGP_SuiteHandler(const AEGP_SuiteHandler&) = delete;
    AEGP_SuiteHandler& operator=(const AEGP_SuiteHandler&) = delete;

    // The table of a suite, acquired at the first call with this name and version. `name` must
    // outlive the handler. Throws the int 516 if the host does not have it.
    const void* LoadSuite(const char* name, A_long version);

    // Releases every suite acquired so far, the last one first. The handler can be used again.
    void ReleaseAllSuites();

    // Throws the int 516.
    [[noreturn]] static void MissingSuiteError();

    const AEGP_RegisterSuite6& RegisterSuite6() {
        return load<AEGP_RegisterSuite6>(kAEGPRegisterSuite, kAEGPRegisterSuiteVersion);
    }
    const AEGP_CommandSuite1& CommandSuite1() {
        return load<AEGP_CommandSuite1>(kAEGPCommandSuite, kAEGPCommandSuiteVersion);
    }
    const AEGP_UtilitySuite3& UtilitySuite3() {
        return load<AEGP_UtilitySuite3>(kAEGPUtilitySuite, kAEGPUtilitySuiteVersion);
    }
    const AEGP_CollectionSuite1& CollectionSuite1() {
        return load<AEGP_CollectionSuite1>(kAEGPCollectionSuite, kAEGPCollectionSuiteVersion);
    }
    const AEGP_ItemSuite3& ItemSuite3() {
        return load<AEGP_ItemSuite3>(kAEGPItemSuite, kAEGPItemSuiteVersion);
    }
    const AEGP_CompSuite4& CompSuite4() {
        return load<AEGP_CompSuite4>(kAEGPCompSuite, kAEGPCompSuiteVersion);
    }
    const AEGP_LayerSuite5& LayerSuite5() {
        return load<AEGP_LayerSuite5>(kAEGPLayerSuite, kAEGPLayerSuiteVersion);
    }
    const AEGP_LayerSuite8& LayerSuite8() {
        return load<AEGP_LayerSuite8>(kAEGPLayerSuite, kAEGPLayerSuite8Version);
    }
    const AEGP_LayerSuite10& LayerSuite10() {
        return load<AEGP_LayerSuite10>(kAEGPLayerSuite, kAEGPLayerSuite10Version);
    }
    const AEGP_StreamSuite4& StreamSuite4() {
        return load<AEGP_StreamSuite4>(kAEGPStreamSuite, kAEGPStreamSuiteVersion);
    }
    const AEGP_KeyframeSuite1& KeyframeSuite1() {
        return load<AEGP_KeyframeSuite1>(kAEGPKeyframeSuite, kAEGPKeyframeSuiteVersion);
    }

  private:
    template <typename Suite>
    const Suite& load(const char* name, A_long version) {
        return *static_cast<const Suite*>(LoadSuite(name, version));
    }

    struct Slot {
        const char* name;
        A_long version;
        const void* suite;
    };

    SPBasicSuite* _basic;
    std::array<Slot, 16> _slots; // more than the accessors above
    std::size_t _used = 0;
};
