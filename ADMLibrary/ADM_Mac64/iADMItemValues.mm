// The values of items: on or off, alone or in a radio group, and numbers with a range.

#include "ADMLibrary/ADM_Mac64/Assertions.h"
#include "ADMLibrary/ADM_Mac64/iADMDialog.h"
#include "ADMLibrary/ADM_Mac64/iADMItem.h"
#include "ADMLibrary/ADM_Mac64/NumberText.h"
#include "core/truncated.h"

#include <algorithm>
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

std::vector<iADMItem*> iADMItem::rest_of_radio_group() const {
    std::vector<iADMItem*> rest;
    for (const int direction : {-1, +1})
        for (std::int64_t id = std::int64_t{_id} + direction;
             (id >= 0 || direction > 0) && id <= std::numeric_limits<int>::max(); id += direction) {
            iADMItem* neighbour = dialog->GetItem(static_cast<int>(id));
            if (!neighbour || !neighbour->_isRadio) break;
            rest.push_back(neighbour);
        }
    return rest;
}

bool iADMItem::rest_of_radio_group_is_off() const {
    const auto rest = rest_of_radio_group();
    return std::none_of(rest.begin(), rest.end(),
                        [](const iADMItem* each) { return each->GetBooleanValue(); });
}

void iADMItem::setRadio() {
    NSButton* button = as_button(_control);
    if (!button) adm::assertion_failed("setRadio", adm::kAssertionSource, 727, "0");
    [button setState:1];
    for (iADMItem* each : rest_of_radio_group()) [as_button(each->_control) setState:0];
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
                                           : adm::text_to_float(text, &number);
    if (!accepted) return _value;
    _value = number > _maxValue ? _maxValue : number < _minValue ? _minValue : number;
    return _value;
}

int iADMItem::GetIntValue() {
    char text[128];
    if (!read_text(text)) return truncated(_value);
    int n = 0;
    if (!adm::text_to_int(text, &n)) return truncated(_value);
    int result = n;
    if (static_cast<float>(n) > _maxValue)
        result = truncated(_maxValue);
    else if (static_cast<float>(n) < _minValue)
        result = truncated(_minValue);
    _value = static_cast<float>(result);
    return result;
}
