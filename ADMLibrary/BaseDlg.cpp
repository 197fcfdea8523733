#include "ADMLibrary/BaseDlg.h"

#include "ADMLibrary/CustomIcon.h"

#include <algorithm>

namespace {

std::int16_t sum16(std::int16_t a, std::int16_t b) {
    return static_cast<std::int16_t>(a + b);
}

void size_to_best(_Opaque_ADMItem* item) {
    if (!item) return;
    Point size = {0, 0};
    ADMItemSuite10::GetBestSize(item, &size);
    const Rect local = {0, 0, size.v, size.h};
    ADMItemSuite10::SetLocalRect(item, &local);
}

// The start of a length centred within another one that starts at 0.
std::int16_t centred(int outer, int inner) {
    return std::max<std::int16_t>(0, static_cast<std::int16_t>((outer - inner) / 2));
}

} // namespace

BaseDlg::BaseDlg() : _enabled(ADMDialogSuite9::IsEnabled(_handle)), _suites(sSPBasic) {}

void BaseDlg::Destroy() {
    _icons.clear();
    BaseADMDialog::Destroy();
}

void BaseDlg::Enable(unsigned char enable) {
    const bool wanted = enable != 0;
    if (IsEnabled() == wanted) return;
    for (_Opaque_ADMItem* item = adm::first_item(_handle); item;
         item = ADMDialogSuite9::GetNextItem(_handle, item))
        enable_item(item, wanted);
    for (BaseADMItem* icon : _icons) enable_item(*icon, wanted);
    _enabled = wanted;
}

bool BaseDlg::IsEnabled() const {
    return _enabled;
}

void BaseDlg::enable_item(_Opaque_ADMItem* item, bool enable) {
    if (ADMItemSuite10::IsEnabled(item) != enable) ADMItemSuite10::Enable(item, enable);
}

void BaseDlg::SetLocalRect(const IASRect& rect) {
    ADMDialogSuite9::SetLocalRect(_handle, &rect);
}

void BaseDlg::MoveToScreenCenter() {
    const Point origin = {0, 0};
    Rect screen;
    if (!ADMBasicSuite8::GetScreenDimensions(&origin, &screen)) return;
    Rect bounds = {0, 0, 0, 0};
    ADMDialogSuite9::GetBoundsRect(_handle, &bounds);
    const int width = bounds.right - bounds.left;
    const int height = bounds.bottom - bounds.top;
    const std::int16_t x = centred(screen.right - screen.left, width);
    const std::int16_t y = centred(screen.bottom - screen.top, height);
    const Rect moved = {y, x, static_cast<std::int16_t>(y + height),
                        static_cast<std::int16_t>(x + width)};
    ADMDialogSuite9::SetBoundsRect(_handle, &moved);
}

_Opaque_ADMItem* BaseDlg::add_ctrl(const char* itemType, const IASRect& rect, const char* text,
                                   int itemID) {
    // The third and fourth fields are a height and a width.
    const Rect bounds = {rect.top, rect.left, sum16(rect.top, rect.bottom),
                         sum16(rect.left, rect.right)};
    _Opaque_ADMItem* item =
        ADMItemSuite10::Create(_handle, itemID, itemType, &bounds, nullptr, nullptr, 0);
    if (item && text) ADMItemSuite10::SetText(item, text);
    return item;
}

_Opaque_ADMItem* BaseDlg::add_frame(const IASRect& rect, const char* text, int itemID,
                                    ADMFrameStyle style) {
    _Opaque_ADMItem* item = add_ctrl(kADMFrameType, rect, text, itemID);
    ADMItemSuite10::SetItemStyle(item, style);
    return item;
}

_Opaque_ADMItem* BaseDlg::add_icon(const IASRect& rect, ADMItemDrawProc drawProc, int itemID) {
    _Opaque_ADMItem* item = add_ctrl(kADMPictureStaticType, rect, nullptr, itemID);
    _icons.push_back(new CustomIcon(item, drawProc));
    return item;
}

_Opaque_ADMItem* BaseDlg::add_edit(const IASRect& rect, int itemID, float minValue, float maxValue,
                                   float value) {
    _Opaque_ADMItem* item = add_ctrl(kADMTextEditType, rect, nullptr, itemID);
    ADMItemSuite10::ShowUnits(item, false);
    ADMItemSuite10::SetUnits(item, 0);
    ADMItemSuite10::SetMinFloatValue(item, minValue);
    ADMItemSuite10::SetMaxFloatValue(item, maxValue);
    ADMItemSuite10::SetFloatValue(item, value);
    return item;
}

_Opaque_ADMItem* BaseDlg::add_static(const IASPoint& topLeft, const char* text, int itemID) {
    _Opaque_ADMItem* item =
        add_ctrl(kADMTextStaticType, {topLeft.v, topLeft.h, 0, 0}, text, itemID);
    size_to_best(item);
    return item;
}

_Opaque_ADMItem* BaseDlg::add_radio(const IASRect& rect, const char* text, int itemID, int value) {
    _Opaque_ADMItem* item = add_ctrl(kADMTextRadioButtonType, rect, text, itemID);
    ADMItemSuite10::SetBooleanValue(item, static_cast<unsigned char>(value));
    size_to_best(item);
    return item;
}

_Opaque_ADMItem* BaseDlg::add_checkbox(const IASRect& rect, const char* text, int itemID,
                                       int value) {
    _Opaque_ADMItem* item = add_ctrl(kADMTextCheckBoxType, rect, text, itemID);
    ADMItemSuite10::SetBooleanValue(item, static_cast<unsigned char>(value));
    size_to_best(item);
    return item;
}
