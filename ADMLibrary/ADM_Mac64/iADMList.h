// The list of a pop-up item, and the record that refers to one of its entries.

#pragma once

#include "ADMLibrary/ADM_Mac64/Handles.h"

#include <Cocoa/Cocoa.h>

// An index into the list's menu, checked when it is used.
struct iADMEntry {
    std::int32_t i;
    iADMList* list;

    void SetText(const char* text); // UTF-8
    void Select();
};

class iADMList {
  public:
    virtual ~iADMList();

    // Sets the control whose menu the list is, and retains it.
    void bind(NSControl* control);

    iADMEntry* InsertEntry(int index);
    iADMEntry* IndexEntry(int index);
    iADMEntry* GetActiveEntry();
    int NumberOfEntries() const;
    void RemoveEntry(int index);

    iADMEntry lastEntry = {0, nullptr};
    NSControl* _control = nil;
    NSMenu* _menu = nil;

  private:
    friend struct iADMEntry;
    NSPopUpButton* pop_up() const; // nil for any other control
    NSMenuItem* entry_at(int index) const;
};
