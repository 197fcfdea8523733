// The base of every dialog: a builder call for each kind of control, and calls that enable, size
// and centre the whole dialog.
//
// The builder calls are valid from the start of Init until the toolkit dialog is destroyed. Each
// returns the new item, valid as long as the dialog, or null if it could not be made. Their
// rectangles are {top, left, height, width} in the dialog's coordinates.

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
    // Enables or disables every item, unless the whole dialog is in that state already. A subclass
    // calls this first and then adjusts single items.
    virtual void Enable(unsigned char enable);
    // The state that Enable set last; false at first.
    virtual bool IsEnabled() const;
    // Sizes the dialog; here `rect` is a true rectangle.
    virtual void SetLocalRect(const IASRect& rect);
    // Centres the dialog within a screen of the main screen's size and the origin (0, 0), never at
    // negative coordinates. Does nothing if the size is unknown.
    virtual void MoveToScreenCenter();

    // An item of any type. `text` may be null.
    _Opaque_ADMItem* add_ctrl(const char* itemType, const IASRect& rect, const char* text,
                              int itemID);
    _Opaque_ADMItem* add_frame(const IASRect& rect, const char* text, int itemID,
                               ADMFrameStyle style);
    // A picture. Its wrapper is added to the list of icons, which does not own it.
    _Opaque_ADMItem* add_icon(const IASRect& rect, ADMItemDrawProc drawProc, int itemID);
    // A number field. Its value is clamped to the range only when it is read.
    _Opaque_ADMItem* add_edit(const IASRect& rect, int itemID, float minValue, float maxValue,
                              float value);
    // Static texts, radio buttons and check boxes get the size that their text needs. A button is
    // on if the low byte of `value` is not 0.
    _Opaque_ADMItem* add_static(const IASPoint& topLeft, const char* text, int itemID);
    _Opaque_ADMItem* add_radio(const IASRect& rect, const char* text, int itemID, int value);
    _Opaque_ADMItem* add_checkbox(const IASRect& rect, const char* text, int itemID, int value);

  protected:
    const std::list<BaseADMItem*>& icons() const { return _icons; }
    // Leaves an item alone that is in the wanted state: enabling asks the host for colours and
    // redraws the item.
    static void enable_item(_Opaque_ADMItem* item, bool enable);

  private:
    bool _enabled;
    AEGP_SuiteHandler _suites;
    std::list<BaseADMItem*> _icons; // in the order in which they were made
};
