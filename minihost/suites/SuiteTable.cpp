#include "minihost/suites/SuiteTable.h"

#include "minihost/suites/SuiteFunctions.h"
#include "sdk/Host.h"

namespace minihost {

namespace {

const Suite all_suites[] = {
    {kAEGPRegisterSuite,
     kAEGPRegisterSuiteVersion,
     nullptr,
     register_suite,
     {"RegisterCommandHook", "RegisterUpdateMenuHook", "RegisterDeathHook", "RegisterIdleHook"}},
    {kAEGPCommandSuite,
     kAEGPCommandSuiteVersion,
     nullptr,
     command_suite,
     {"GetUniqueCommand", "InsertMenuCommand", "EnableCommand", "DisableCommand",
      "CheckMarkMenuCommand", "DoCommand"}},
    {kAEGPUtilitySuite,
     kAEGPUtilitySuiteVersion,
     nullptr,
     utility_suite,
     {"ReportInfo", "StartUndoGroup", "EndUndoGroup"}},
    {kAEGPCollectionSuite,
     kAEGPCollectionSuiteVersion,
     nullptr,
     collection_suite,
     {"NewCollection", "DisposeCollection", "GetCollectionNumItems", "GetCollectionItemByIndex",
      "CollectionPushBack"}},
    {kAEGPItemSuite,
     kAEGPItemSuiteVersion,
     nullptr,
     item_suite,
     {"GetActiveItem", "GetItemType", "GetItemDimensions"}},
    {kAEGPCompSuite,
     kAEGPCompSuiteVersion,
     nullptr,
     comp_suite,
     {"GetCompFromItem", "GetNewCollectionFromCompSelection", "SetSelection"}},
    {kAEGPLayerSuite,
     kAEGPLayerSuiteVersion,
     nullptr,
     layer_suite_5,
     {"GetCompNumLayers", "GetCompLayerByIndex", "GetLayerIndex", "GetLayerSourceItem",
      "GetLayerName", "GetLayerCurrentTime", "GetLayerOffset", "ReorderLayer", "GetLayerObjectType",
      "IsLayer3D"}},
    {kAEGPLayerSuite, kAEGPLayerSuite8Version, "layer-suite-8", layer_suite_8, {}},
    {kAEGPLayerSuite,
     kAEGPLayerSuite10Version,
     "layer-suite-10",
     layer_suite_10,
     {"DuplicateLayer"}},
    {kAEGPStreamSuite,
     kAEGPStreamSuiteVersion,
     nullptr,
     stream_suite,
     {"GetNewLayerStream", "DisposeStream", "SetStreamValue", "GetLayerStreamValue"}},
    {kAEGPKeyframeSuite, kAEGPKeyframeSuiteVersion, nullptr, keyframe_suite, {"InsertKeyframe"}},
    {kAEGPPanelSuite,
     kAEGPPanelSuiteVersion,
     "panels",
     panel_suite,
     {"RegisterCreatePanelHook", "ToggleVisibility", "SetTitle"}},
    {kPFAppSuite, kPFAppSuiteVersion, "colours", app_suite, {"PF_AppGetColor"}},
};

} // namespace

std::span<const Suite> suites() {
    return all_suites;
}

const Suite* find_suite(std::string_view name, int version) {
    for (const Suite& suite : all_suites)
        if (suite.name == name && suite.version == version) return &suite;
    return nullptr;
}

bool is_host_call(std::string_view suite_and_call) {
    if (suite_and_call == "SPBasic.AcquireSuite" || suite_and_call == "SPBasic.ReleaseSuite")
        return true;
    for (const Suite& suite : all_suites)
        for (const char* call : suite.calls)
            if (suite_and_call == std::string(suite.name) + "." + call) return true;
    return false;
}

bool is_release_call(std::string_view suite_and_call) {
    for (const char* call : {"SPBasic.ReleaseSuite", "AEGP Collection Suite.DisposeCollection",
                             "AEGP Stream Suite.DisposeStream", "AEGP Utility Suite.EndUndoGroup"})
        if (suite_and_call == call) return true;
    return false;
}

bool Suite::is_left_out_by(std::string_view word) const {
    return (without && word == without) || word == name + (" " + std::to_string(version));
}

bool is_without_word(std::string_view word) {
    for (const Suite& suite : all_suites)
        if (suite.is_left_out_by(word)) return true;
    return false;
}

} // namespace minihost
