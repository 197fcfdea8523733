// The record behind an item: its Cocoa views, its number, its procedures.

#pragma once

#include "ADMLibrary/ADM_Mac64/iADMList.h"

#include <Cocoa/Cocoa.h>

class iADMItemBase {
  public:
    iADMItemBase() = default;
    // Copies the references without taking new ones: the item store needs it to compile, and never
    // moves an item.
    iADMItemBase(const iADMItemBase&) = default;
    virtual ~iADMItemBase();

    iADMDialog* dialog = nullptr;
    NSControl* _control = nil; // one reference, as of the next two
    NSTextField* _label = nil;
    NSBox* _box = nil;
    Point _labelOffset = {0, 0};
    Rect _bounds = {0, 0, 0, 0}; // as it was last given
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

// The operations are those of ADMItemSuite10 unless a comment tells more.
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

    // Shows the number that is stored, in the control's own format.
    void refresh_number();
    float GetFloatValue();
    int GetIntValue();
    static bool DefaultTextToFloat(const char* text, float* value);
    static bool DefaultFloatToText(float value, char* text);

    void GetBoundsRect(Rect* out) const;
    void SetBoundsRect(const Rect* r);
    void SetLocalRect(const Rect* r);
    void GetBestSize(Point* out) const;
    // Gives the item its text label and lays item and label out.
    void makeLabel(NSString* text);

    iADMList* GetList();

    iADMList _list;

  private:
    // Makes the views that the type asks for; an unknown type has none.
    void make_views();
    // What is measured and laid out as the item's own view; nil if there is none.
    NSView* view() const;
    Rect best_rect() const;

    // The text of the control in Mac Roman; false if there is none or it does not fit.
    bool read_text(char (&text)[128]) const;

    // A radio button's neighbours: the run of radio buttons with the ids next to its own. The walk
    // in one direction (+1 or -1) stops when `visit` answers false.
    template <typename Visitor>
    void walk_radio_group(int direction, Visitor visit) const;
    bool is_alone_in_radio_group() const;
    void setRadio();

    friend struct ItemViews;
};
