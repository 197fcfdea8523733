#include "ADMLibrary/ADM_Mac64/iADMList.h"

iADMList::~iADMList() {
    [_menu release];
    [_control release];
}

void iADMList::bind(NSControl* control) {
    [control retain];
    [_control release];
    _control = control;
}

NSPopUpButton* iADMList::pop_up() const {
    return [_control isKindOfClass:[NSPopUpButton class]] ? (NSPopUpButton*)_control : nil;
}

NSMenuItem* iADMList::entry_at(int index) const {
    return index >= 0 && index < NumberOfEntries() ? [[pop_up() menu] itemAtIndex:index] : nil;
}

int iADMList::NumberOfEntries() const {
    NSMenu* menu = [pop_up() menu];
    return menu ? static_cast<int>([menu numberOfItems]) : 0;
}

iADMEntry* iADMList::InsertEntry(int index) {
    NSMenu* menu = [pop_up() menu];
    if (!menu || index < 0 || index > NumberOfEntries()) return nullptr;
    NSMenuItem* entry = [[NSMenuItem alloc] init];
    [entry setTitle:@""];
    [menu insertItem:entry atIndex:index];
    [entry release];
    return IndexEntry(index);
}

iADMEntry* iADMList::IndexEntry(int index) {
    lastEntry = {index, this};
    return &lastEntry;
}

iADMEntry* iADMList::GetActiveEntry() {
    if (NumberOfEntries() < 1) return nullptr;
    return IndexEntry(static_cast<int>([pop_up() indexOfSelectedItem]));
}

void iADMList::RemoveEntry(int index) {
    if (entry_at(index)) [[pop_up() menu] removeItemAtIndex:index];
}

void iADMEntry::SetText(const char* text) {
    NSString* title = text ? [NSString stringWithUTF8String:text] : nil;
    if (title && list) [list->entry_at(i) setTitle:title];
}

void iADMEntry::Select() {
    if (list && list->entry_at(i)) [list->pop_up() selectItemAtIndex:i];
}
