// The base of every dialog: one call for each control that Init makes, and the dialog as a whole
// enabled, sized and centred.
//
// The builder calls are valid from the start of Init until the toolkit dialog is destroyed. Each
// returns the new item, good as long as the dialog; null if it could not be made, and then nothing
// else was done. Their rectangles are {top, left, height, width} in the dialog's coordinates.

#pragma once

#include "ADMLibrary/BaseADMDialog.h"
#include "ADMLibrary/BaseADMItem.h"
#include "ADMLibrary/IASTypes.h"
#include "host/services/AEGP_SuiteHandler.h"

#include <list>

class BaseDlg : public BaseADMDialog {
  public:
    // Throws the int 516 if the host's basic suite is not known yet.
    BaseDlg();

    void Destroy() override;
    ~BaseDlg() override;
    // Enables or disables every item, if the dialog is not so already. A subclass calls this first
    // and then adjusts single items.
    virtual void Enable(unsigned char enable);
    // What Enable was told last; false at first.
    virtual bool IsEnabled();
    // Sizes the dialog; here `rect` is a true rectangle.
    virtual void SetLocalRect(const IASRect& rect);
    // Centres the dialog within a screen of the main screen's size whose origin is (0, 0); never at
    // a negative place. Does nothing if the size cannot be had.
    virtual void MoveToScreenCenter();

    // An item of any type. `text` may be null.
    _Opaque_ADMItem* add_ctrl(const char* itemType, const IASRect& rect, const char* text,
                              int itemID);
    _Opaque_ADMItem* add_frame(const IASRect& rect, const char* text, int itemID,
                               ADMFrameStyle style);
    // A picture; its wrapper is kept in the list of icons but not owned.
    _Opaque_ADMItem* add_icon(const IASRect& rect, ADMItemDrawProc drawProc, int itemID);
    // A number field, whose value is not held to the range until it is read.
    _Opaque_ADMItem* add_edit(const IASRect& rect, int itemID, float minValue, float maxValue,
                              float value);
    // Static texts, radio buttons and check boxes take the size that their text needs. The low byte
    // of `value` tells whether the button is on.
    _Opaque_ADMItem* add_static(const IASPoint& topLeft, const char* text, int itemID);
    _Opaque_ADMItem* add_radio(const IASRect& rect, const char* text, int itemID, int value);
    _Opaque_ADMItem* add_checkbox(const IASRect& rect, const char* text, int itemID, int value);

  protected:
    const std::list<BaseADMItem*>& icons() const { return _icons; }

  private:
    bool _enabled;
    AEGP_SuiteHandler _suites;
    std::list<BaseADMItem*> _icons; // in the order in which they were made
};
