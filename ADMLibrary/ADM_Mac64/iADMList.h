// The list of a pop-up item, and the one entry record through which its entries are named.

#pragma once

#include "ADMLibrary/ADM_Mac64/Handles.h"

#include <Cocoa/Cocoa.h>

// An index into the list's menu; whether there is such an entry shows when it is used.
struct iADMEntry {
    std::int32_t i;
    iADMList* list;

    void SetText(const char* text) const; // UTF-8
    void Select() const;
};

class iADMList {
  public:
    virtual ~iADMList();

    // Takes over the control whose menu the list is, with a reference of its own.
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
    NSPopUpButton* pop_up() const; // nil if the control is none
    NSMenuItem* entry_at(int index) const;
};
