// The record behind an item: its Cocoa views, its number, its procedures.

#pragma once

#include "ADMLibrary/ADM_Mac64/iADMList.h"

#include <Cocoa/Cocoa.h>
#include <vector>

class iADMItemBase {
  public:
    iADMItemBase() = default;
    // Copies the references without retaining them: std::vector needs it to compile, but the item
    // store never moves an item.
    iADMItemBase(const iADMItemBase&) = default;
    virtual ~iADMItemBase();

    iADMDialog* dialog = nullptr;
    NSControl* _control = nil; // one reference each of this and the next two
    NSTextField* _label = nil;
    NSBox* _box = nil;
    Point _labelOffset = {0, 0};
    Rect _bounds = {0, 0, 0, 0}; // as last set
    bool _isRadio = false;
    bool _isFrame = false;
    void* _userData = nullptr;
    const char* _type = nullptr; // not copied
    std::int32_t _id = 0;
    float _value = 0, _minValue = 0, _maxValue = 0;
    ADMItemDrawProc _drawProc = nullptr;
    ADMItemTrackProc _trackProc = nullptr;
    ADMItemNotifyProc _notifyProc = nullptr;
    ADMItemDestroyProc _destroyProc = nullptr;
    ADMItemFloatToTextProc _floatToTextProc = nullptr;
    ADMItemTextToFloatProc _textToFloatProc = nullptr;
};

// The operations are those of ADMItemSuite10, except where a comment says otherwise.
class iADMItem : public iADMItemBase {
  public:
    // Null if the dialog is full or `init` fails; asserts that the dialog has a content view.
    static iADMItem* Create(iADMDialog* dialog, int id, const char* type, const Rect* r,
                            ADMItemInitProc init, void* userData);

    void SetText(const char* text);
    void SetFont(ADMFont font);
    void Enable(bool enable);
    bool IsEnabled() const;
    void Show(bool show);

    bool GetBooleanValue() const;
    void SetBooleanValue(bool value);

    // Shows the stored number in the control's own format.
    void refresh_number();
    float GetFloatValue();
    int GetIntValue();

    void GetBoundsRect(Rect* out) const;
    void SetBoundsRect(const Rect* r);
    void SetLocalRect(const Rect* r);
    void GetBestSize(Point* out) const;
    // Gives the item its text label and lays item and label out.
    void makeLabel(NSString* text);

    iADMList* GetList();

    iADMList _list;

  private:
    // Makes the views of the item's type; an unknown type has none.
    void make_views();
    // The view without its label; may be nil.
    NSView* view() const;
    Rect best_rect() const;

    // The text of the control in Mac Roman; false if it has none or it does not fit.
    bool read_text(char (&text)[128]) const;

    // The radio buttons with consecutive ids below and above this one's.
    std::vector<iADMItem*> rest_of_radio_group() const;
    bool rest_of_radio_group_is_off() const;
    // Turns this on and the rest of its group off.
    void setRadio();

    friend struct ItemViews;
};
