// The assistant: the part of the dialog that reads the selected 3D layers, lets the concrete dialog
// place them, and writes them back, all in one undo step.
//
// One Apply:
//   1. save_selection       what is selected in the active composition
//   2. collect_info         one LayerInfo for each selected 3D layer
//   3. get_camera_orientation
//   4. sort_layers, then reversed or shuffled
//   5. restore_scale        the scales from before the first fit
//   6. get_layers_pos       the concrete dialog places, turns and scales the records
//   7. apply_to_layers      duplicates for the repeats, and every value written
//
// Host errors are returned as they come; the first one ends the operation. A missing host suite is
// thrown as the int 516.

#pragma once

#include "ADMLibrary/BaseDlg.h"
#include "common/adobe/LayerInfo.h"
#include "math/vector.h"
#include "sdk/Host.h"

#include <list>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

class AssistantDlg : public BaseDlg {
  public:
    using LayerInfo = ::LayerInfo;
    using LayerSet = std::set<AEGP_LayerH>;
    using ScaleMap = std::map<AEGP_LayerH, AEGP_StreamValue>;
    using SizeMap = std::map<AEGP_LayerH, A_LPoint>;

    explicit AssistantDlg(int plugin_id);

    // Titles and centres the dialog; the concrete dialog then adds its items. Result of the base.
    int Init() override;
    // Runs Apply for items 3 and 1 and follows "Repeat Layers", once a composition has been seen.
    void Notify(IADMNotifier notifier) override;
    // Gives the selection back.
    void Destroy() override;
    void Enable(unsigned char enable) override;

    // Appends the repeat copies to `layers`: as many blocks of copies as the count says.
    virtual void constrain_layers();
    // Brings the camera pop-up up to date with the active composition's cameras.
    virtual A_Err fill_combo_camera();
    virtual A_Err apply_assistant();
    virtual void sort_layers();

    // The options of the user, each read from its item at the moment of the call.
    virtual bool is_reverse_order() const;
    virtual bool is_random_order() const;
    virtual bool is_scale_to_fit() const;
    virtual bool is_repeat_seq() const;
    virtual bool is_key_pos() const;
    virtual bool is_key_orient() const;
    virtual bool is_key_scale() const;

    // Fills `pos`, `orient` and `scale` of the records in `layers`.
    virtual A_Err get_layers_pos() = 0;
    // The assistant's name: title of the dialog and name of the undo step.
    virtual std::string get_name() const = 0;
    // Writes the records to their layers; always 0, since a layer that fails is passed over.
    virtual A_Err apply_to_layers();

    virtual bool is_orient_changed() const;
    // What is added to every position, in composition pixels.
    virtual math::TGeomVector3D<double> get_offset() const;
    virtual bool is_text_layer_use_comp_size() const;
    virtual math::TGeomVector3D<double> get_starting_point() const;
    // Whether the "Starting Value" moves the arrangement as a whole rather than its first layer.
    virtual bool is_distributor() const;

    // What is to be done when the host may have changed; returns fill_combo_camera's result.
    virtual A_Err OnHostHasChanged();
    // Whether a selected layer is of a kind in `mask`: 1 footage or solid in 3D, 2 light, 4 camera,
    // 8 text in 3D, 16 shape in 3D. False also when the host fails.
    virtual bool isCurSelectionContains(unsigned int mask);
    // Shows a text to the user.
    virtual void ErrorMessageBox(const std::string& text);

    // The kinds of layer that Apply places.
    static constexpr unsigned int placeable = 1 | 8 | 16;

  protected:
    // Reads the active composition and its selection anew.
    A_Err save_selection();
    // The layers in `selection`, each once. False on failure, with what was read so far.
    bool snap_selection(LayerSet* set) const;
    // The same, with each layer's Scale and pixel size; a layer that cannot be read has none.
    bool snap_selection(LayerSet* set, ScaleMap* scales, SizeMap* sizes) const;
    // All layers of the active composition; false on failure or if it has none.
    bool snap_comp(LayerSet* set) const;

    // Measurement; results are written on success only.
    A_Err collect_info(AEGP_LayerH layer, LayerInfo* info) const;
    A_Err get_layer_scale(AEGP_LayerH layer, AEGP_StreamValue* scale) const;
    A_Err get_layer_dimensions(AEGP_LayerH layer, int* width, int* height) const;
    // The orientation that faces the camera `layer`, degrees, into the value of `orient`.
    A_Err get_layer_orientation(AEGP_LayerH layer, AEGP_StreamValue* orient) const;
    // That of the camera chosen in the pop-up, into `camera_orient`; nothing without a choice.
    A_Err get_camera_orientation();

    // Duplicates a layer; null when there is no duplicate.
    AEGP_LayerH clone(AEGP_LayerH layer);
    AEGP_LayerH clonePre65(AEGP_LayerH layer);
    // Puts the remembered pre-fit scales back into the records, and remembers those of the layers
    // that are selected now.
    void restore_scale();

    // Items by id. A missing item is off, 0, and ignores being enabled.
    _Opaque_ADMItem* item(int id) const;
    bool is_on(int id) const;
    float number(int id) const;
    void enable_item(int id, bool enable);
    void set_on(int id, bool on);
    void enable_repeat_layers();

    AEGP_PluginID plugin_id;
    std::vector<AEGP_LayerH> cameras; // in the order of the pop-up's entries
    AEGP_StreamValue camera_orient{};
    std::list<LayerInfo> layers;
    AEGP_CollectionH selection = nullptr; // owned
    AEGP_CompH comp = nullptr;
    A_long comp_width = 0, comp_height = 0;
    A_long max_width = 0, max_height = 0; // source size of the largest selected 3D layer
    bool scales_saved = false;
    ScaleMap saved_scales;
    SizeMap saved_sizes;
    LayerSet saved_layers;

  private:
    void apply_without_throwing();
    A_Err count_selected_items(A_u_long* count) const;
    A_Err collect_layers(A_u_long count);
    void shuffle_layers();
    void remember_scales();
    AEGP_LayerH duplicate_of_selected(AEGP_SuiteHandler& suites);

    // The active item and its composition. When the active item is no composition, `item` is null
    // and `found` stays as it is.
    static A_Err active_comp(AEGP_SuiteHandler& suites, AEGP_ItemH* item, AEGP_CompH* found);
    // The layers in `selection`, each once, in the order of their handles; on an error those that
    // come before it.
    A_Err read_selection(std::vector<AEGP_LayerH>* selected) const;
    A_Err measure_largest_source(AEGP_SuiteHandler& suites,
                                 const std::vector<AEGP_LayerH>& selected);
    void release_selection();

    struct CameraList {
        std::vector<AEGP_LayerH> layers;
        std::vector<std::string> names;
    };
    A_Err read_cameras(std::optional<CameraList>* found) const;
    void show_cameras(_Opaque_ADMList* list, const CameraList& found);
    int chosen_camera(_Opaque_ADMList* list) const;
    bool offers_camera() const;
    void enable_towards_camera();

    math::TGeomVector3D<double> start_value() const;
};
