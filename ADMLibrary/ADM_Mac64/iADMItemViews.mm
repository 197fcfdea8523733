// The Cocoa objects that make up an item of each type.

#include "ADMLibrary/ADM_Mac64/AECells.h"
#include "ADMLibrary/ADM_Mac64/AEColors.h"
#include "ADMLibrary/ADM_Mac64/AEDrawerCell.h"
#include "ADMLibrary/ADM_Mac64/AppKitValues.h"
#include "ADMLibrary/ADM_Mac64/Geometry.h"
#include "ADMLibrary/ADM_Mac64/iADMDialog.h"
#include "ADMLibrary/ADM_Mac64/iADMItem.h"

#include <cstring>

struct ItemViews {
    static NSButton* button(const iADMItem& item) {
        return [[[NSButton alloc] initWithFrame:adm::frame_of(item._bounds)] autorelease];
    }

    // Restacks the dialog's views: the earlier frames at the bottom, then all controls and labels,
    // then the new frame's box. Controls made later come above it.
    static void make_frame(iADMItem& item) {
        item._isFrame = true;
        NSBox* box = [[[NSBox alloc] initWithFrame:adm::frame_of(item._bounds)] autorelease];
        [box setTitle:@""];

        NSView* content = item.dialog->_view;
        for (const iADMItem& each : item.dialog->_items) {
            [each._box removeFromSuperview];
            [each._control removeFromSuperview];
            [each._label removeFromSuperview];
        }
        for (const iADMItem& each : item.dialog->_items)
            if (each._box) [content addSubview:each._box];
        for (const iADMItem& each : item.dialog->_items) {
            if (each._control && !each._isFrame) [content addSubview:each._control];
            if (each._label) [content addSubview:each._label];
        }
        [content addSubview:box];
    }

    static void make_nothing(iADMItem&) {}

    static void make_picture(iADMItem& item) {
        NSButton* made = button(item);
        [made setCell:[[[AEDrawerCell alloc] initWithADMItem:&item] autorelease]];
        item._control = made;
    }

    static void make_pop_up(iADMItem& item) {
        NSPopUpButton* made =
            [[[NSPopUpButton alloc] initWithFrame:adm::frame_of(item._bounds)] autorelease];
        [made setCell:[[[AEPopupButtonCell alloc] init] autorelease]];
        item._list._menu = [[NSMenu alloc] initWithTitle:@"ADMMenu"];
        [made setMenu:item._list._menu];
        item._control = made;
    }

    static void make_slider(iADMItem& item) {
        item._control = [[[NSSlider alloc] initWithFrame:adm::frame_of(item._bounds)] autorelease];
    }

    static void make_check_box(iADMItem& item) {
        NSButton* made = button(item);
        [made setButtonType:adm::kSwitchButton];
        [made setCell:[[[AECheckBoxCell alloc] init] autorelease]];
        [made setButtonType:adm::kSwitchButton]; // again: the type belongs to the cell
        [[made cell] setControlSize:adm::kSmallControlSize];
        item._control = made;
    }

    static void make_edit(iADMItem& item) {
        NSRect frame = adm::frame_of(item._bounds);
        frame.size.height -= 5;
        NSTextField* made = [[[NSTextField alloc] initWithFrame:frame] autorelease];
        [made setFont:GetMiniSystemFont()];
        [[made cell] setBezeled:NO];
        [[made cell] setBordered:YES];
        [made setBackgroundColor:[NSColor colorWithDeviceWhite:0.784 alpha:1.0]];
        item._control = made;
    }

    static void make_push_button(iADMItem& item) {
        NSButton* made = button(item);
        [made setBezelStyle:adm::kSmallSquareBezel];
        [made setButtonType:adm::kMomentaryLightButton];
        [made setCell:[[[AEButtonCell alloc] init] autorelease]];
        item._control = made;
    }

    static void make_radio_button(iADMItem& item) {
        const bool on = item.rest_of_radio_group_is_off();
        item._isRadio = true;
        NSButton* made = button(item);
        [made setButtonType:adm::kRadioButton];
        [made setState:on];
        [made setCell:[[[AERadioCell alloc] init] autorelease]];
        // Again: type and state belong to the cell.
        [made setButtonType:adm::kRadioButton];
        [made setState:on];
        [[made cell] setControlSize:adm::kSmallControlSize];
        item._control = made;
    }

    static void make_static(iADMItem& item) {
        NSTextField* made =
            [[[NSTextField alloc] initWithFrame:adm::frame_of(item._bounds)] autorelease];
        [made setFont:GetMiniSystemFont()];
        [made setBordered:NO];
        [made setEditable:NO];
        [made setDrawsBackground:NO];
        [made setTextColor:GetAETextColor()];
        item._label = made;
    }
};

namespace {

struct ItemKind {
    const char* type;
    void (*make)(iADMItem&);
};

constexpr ItemKind kItemKinds[] = {
    {kADMFrameType, ItemViews::make_frame},
    {kADMPicturePushButtonType, ItemViews::make_nothing},
    {kADMPictureStaticType, ItemViews::make_picture},
    {kADMPopupListType, ItemViews::make_pop_up},
    {kADMPopupMenuType, ItemViews::make_pop_up},
    {kADMSliderType, ItemViews::make_slider},
    {kADMTextCheckBoxType, ItemViews::make_check_box},
    {kADMTextEditType, ItemViews::make_edit},
    {kADMTextPushButtonType, ItemViews::make_push_button},
    {kADMTextRadioButtonType, ItemViews::make_radio_button},
    {kADMTextStaticType, ItemViews::make_static},
};

} // namespace

void iADMItem::make_views() {
    if (!_type) return;
    for (const ItemKind& kind : kItemKinds)
        if (std::strcmp(_type, kind.type) == 0) return kind.make(*this);
}
