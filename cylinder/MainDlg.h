// The cylinder dialog: its controls, their behaviour, and the placement pass over the records that
// the assistant has read. The placement itself stands in placement.h, orientation.h and scaling.h.

#pragma once

#include "common/adobe/AssistantDlg.h"
#include "cylinder/CylinderOptions.h"

#include <optional>

class MainDlg : public AssistantDlg {
  public:
    explicit MainDlg(int plugin_id);

    // Lays out every control. A failing step ends the layout quietly; the result is the base's.
    int Init() override;
    // Keeps the dependent controls in step with the user's choice, then does what every assistant
    // does.
    void Notify(IADMNotifier notifier) override;
    ~MainDlg() override;
    void Enable(unsigned char enable) override;

    // The placement pass: repeats, positions, orientations, scales. Always 0.
    A_Err get_layers_pos() override;
    std::string get_name() const override;
    bool is_distributor() override;

    // The steps of the pass over `layers`, one by one: what placement.h, orientation.h and
    // scaling.h do, with the options as the pass has read them, or as the controls have them
    // outside of it.
    void pos_use_dist();
    void pos_randomly(); // seeds the generator from the clock first
    void orient_layers();
    void scale_layers_to_fit();
    void scale_layers_conform();
    // The fraction of the way from `p1` to `p2` at which it leaves the cylinder, 1 if it does not.
    double downscale(const math::TGeomVector3D<double>& p1,
                     const math::TGeomVector3D<double>& p2) const;

  protected:
    // Every option as its control has it now.
    CylinderOptions read_options() const;
    // The cylinder's width, height and depth in pixels, each raised above 0.
    void get_dims(math::TGeomVector3D<double>* dims) const;
    void get_dims(double* x, double* y, double* z) const;

    // Enabling of the controls that depend on a choice.
    void enable_dim();
    void enable_conform();
    void enable_distance();
    void enable_camera();

  private:
    CylinderOptions options() const { return _options ? *_options : read_options(); }

    std::optional<CylinderOptions> _options; // during the placement pass
};
