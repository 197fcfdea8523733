// The cylinder dialog: its controls, their behaviour, and the order of the placement pass over the
// records that the assistant has read. Each step of the pass is a function over the records and the
// options, in placement.h, orientation.h and scaling.h.

#pragma once

#include "common/adobe/AssistantDlg.h"
#include "cylinder/CylinderOptions.h"

class MainDlg : public AssistantDlg {
  public:
    explicit MainDlg(int plugin_id);

    // Lays out every control. A failing step ends the layout quietly; the result is the base's.
    int Init() override;
    // Keeps the dependent controls in step with the user's choice, then does what every assistant
    // does.
    void Notify(IADMNotifier notifier) override;
    void Enable(unsigned char enable) override;

    // The placement pass over `layers`: repeats, positions, orientations, scales. Always 0.
    A_Err get_layers_pos() override;
    std::string get_name() const override;
    bool is_distributor() const override;

  protected:
    // Every option as its control has it now.
    CylinderOptions read_options() const;
    // The cylinder's width, height and depth in pixels, each raised above 0.
    void get_dims(math::TGeomVector3D<double>* dims) const;

    // Enabling of the controls that depend on a choice.
    void enable_dim();
    void enable_conform();
    void enable_distance();
    void enable_camera();
};
