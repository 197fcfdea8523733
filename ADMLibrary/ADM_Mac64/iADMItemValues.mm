// What an item holds: on or off, alone or within a radio group, or a number with a range.

#include "ADMLibrary/ADM_Mac64/Assertions.h"
#include "ADMLibrary/ADM_Mac64/Geometry.h"
#include "ADMLibrary/ADM_Mac64/iADMDialog.h"
#include "ADMLibrary/ADM_Mac64/iADMItem.h"
#include "ADMLibrary/ADM_Mac64/NumberText.h"

#include <limits>

namespace {

NSButton* as_button(NSControl* control) {
    return [control isKindOfClass:[NSButton class]] ? (NSButton*)control : nil;
}

} // namespace

bool iADMItem::GetBooleanValue() const {
    return [as_button(_control) state] == 1;
}

void iADMItem::SetBooleanValue(bool value) {
    if (_isRadio && value)
        setRadio();
    else
        [as_button(_control) setState:value];
}

template <typename Visitor>
void iADMItem::walk_radio_group(int direction, Visitor visit) const {
    for (std::int64_t id = std::int64_t{_id} + direction;
         (id >= 0 || direction > 0) && id <= std::numeric_limits<int>::max(); id += direction) {
        iADMItem* neighbour = dialog->GetItem(static_cast<int>(id));
        if (!neighbour || !neighbour->_isRadio || !visit(*neighbour)) return;
    }
}

bool iADMItem::is_alone_in_radio_group() const {
    bool alone = true;
    const auto look = [&alone](const iADMItem& neighbour) {
        alone = !neighbour.GetBooleanValue();
        return alone;
    };
    walk_radio_group(-1, look);
    if (alone) walk_radio_group(+1, look);
    return alone;
}

void iADMItem::setRadio() {
    NSButton* button = as_button(_control);
    if (!button) adm::assertion_failed("setRadio", adm::kAssertionSource, 727, "0");
    [button setState:1];
    const auto turn_off = [this](iADMItem& neighbour) {
        if (&neighbour != this) [as_button(neighbour._control) setState:0];
        return true;
    };
    walk_radio_group(-1, turn_off);
    walk_radio_group(+1, turn_off);
}

void iADMItem::refresh_number() {
    [_control setFloatValue:_value];
}

bool iADMItem::read_text(char (&text)[128]) const {
    NSString* string = [_control stringValue];
    return string &&
           CFStringGetCString((CFStringRef)string, text, sizeof text, kCFStringEncodingMacRoman);
}

float iADMItem::GetFloatValue() {
    char text[128];
    if (!read_text(text)) return _value;
    float number = 0;
    const bool accepted = _textToFloatProc ? _textToFloatProc(adm::handle(this), text, &number) != 0
                                           : DefaultTextToFloat(text, &number);
    if (!accepted) return _value;
    _value = number;
    if (_value > _maxValue)
        _value = _maxValue;
    else if (_value < _minValue)
        _value = _minValue;
    return _value;
}

int iADMItem::GetIntValue() {
    char text[128];
    if (!read_text(text)) return adm::truncated(_value);
    int n = 0;
    if (!adm::text_to_int(text, &n)) return adm::truncated(_value);
    int result = n;
    if (static_cast<float>(n) > _maxValue)
        result = adm::truncated(_maxValue);
    else if (static_cast<float>(n) < _minValue)
        result = adm::truncated(_minValue);
    _value = static_cast<float>(result);
    return result;
}

bool iADMItem::DefaultTextToFloat(const char* text, float* value) {
    return adm::text_to_float(text, value);
}

bool iADMItem::DefaultFloatToText(float value, char* text) {
    return adm::float_to_text(value, text);
}
