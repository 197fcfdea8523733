#include "ADMLibrary/ADM_Mac64/iADMItem.h"

#include "ADMLibrary/ADM_Mac64/AEColors.h"
#include "ADMLibrary/ADM_Mac64/AppKitValues.h"
#include "ADMLibrary/ADM_Mac64/Assertions.h"
#include "ADMLibrary/ADM_Mac64/CocoaText.h"
#include "ADMLibrary/ADM_Mac64/Geometry.h"
#include "ADMLibrary/ADM_Mac64/iADMDialog.h"

#include <cstring>

iADMItemBase::~iADMItemBase() {
    [_label release];
    [_box release];
    [_control release];
    _label = nil;
    _box = nil;
    _control = nil;
}

iADMItem* iADMItem::Create(iADMDialog* dialog, int id, const char* type, const Rect* r,
                           ADMItemInitProc init, void* userData) {
    iADMItem* const added = dialog ? dialog->add_item(id) : nullptr;
    if (!added) return nullptr;
    iADMItem& item = *added;
    item._userData = userData;
    item._type = type;
    if (r) item._bounds = *r;
    if (!dialog->_view) adm::assertion_failed("Create", adm::kAssertionSource, 203, "view");

    item.make_views();
    if (item._label) {
        [item._label retain];
        [dialog->_view addSubview:item._label];
    }
    if (item._control) {
        [item._control retain];
        [dialog->_view addSubview:item._control];
        [item._control setAction:@selector(onControlClicked:)];
        [item._control setTarget:dialog->_adapter];
        [item._control setTag:id];
    }
    return !init || init(adm::handle(&item)) == 0 ? &item : nullptr;
}

void iADMItem::SetText(const char* text) {
    const adm::CocoaText string(text);
    if (!string.string()) return;
    const bool is_check_box = _type && std::strcmp(_type, kADMTextCheckBoxType) == 0;
    if (_label) {
        [_label setStringValue:string.string()];
        [_label setTextColor:GetAETextColor()];
    } else if (!_isFrame && !_isRadio && !is_check_box) {
        if ([_control respondsToSelector:@selector(setTitle:)])
            [(NSButton*)_control setTitle:string.string()];
        else
            [_control setStringValue:string.string()];
    } else if (*text) {
        makeLabel(string.string());
    }
}

void iADMItem::SetFont(ADMFont font) {
    const CGFloat size = [NSFont systemFontSizeForControlSize:adm::kMiniControlSize];
    NSFont* chosen = nil;
    if (font == 3 || font == 4)
        chosen = [NSFont systemFontOfSize:size];
    else if (font >= 5 && font <= 8)
        chosen = [NSFont boldSystemFontOfSize:size];
    else if (font >= 9 && font <= 12)
        chosen = [NSFont fontWithName:@"Courier" size:size];
    if (!chosen) return;
    [_label setFont:chosen];
    [_control setFont:chosen];
}

void iADMItem::Enable(bool enable) {
    if (_label) {
        [_label setEnabled:enable];
        [_label setTextColor:GetAEColor(enable ? kAEText : kAEDisabledText)];
    }
    [_control setEnabled:enable];
}

bool iADMItem::IsEnabled() const {
    return _control ? [_control isEnabled] : [_label isEnabled];
}

void iADMItem::Show(bool show) {
    NSView* const views[] = {_control, _label, _box};
    for (NSView* each : views) {
        if (!each) continue;
        if (show)
            [dialog->_view addSubview:each];
        else
            [each removeFromSuperview];
    }
}

iADMList* iADMItem::GetList() {
    _list.bind(_control);
    return &_list;
}
