// Holders of one handle each: passed by value, converted to and from the bare handle.

#pragma once

#include "ADMLibrary/ADMTypes.h"

namespace adm {

template <typename Opaque>
class HandleHolder {
  public:
    HandleHolder(Opaque* handle = nullptr) : _handle(handle) {}
    operator Opaque*() const { return _handle; }

  protected:
    Opaque* _handle;
};

} // namespace adm

class IADMDialog : public adm::HandleHolder<_Opaque_ADMDialog> {
    using HandleHolder::HandleHolder;
};
class IADMItem : public adm::HandleHolder<_Opaque_ADMItem> {
    using HandleHolder::HandleHolder;
};
class IADMList : public adm::HandleHolder<_Opaque_ADMList> {
    using HandleHolder::HandleHolder;
};
class IADMEntry : public adm::HandleHolder<_Opaque_ADMEntry> {
    using HandleHolder::HandleHolder;
};
class IADMListEntry : public adm::HandleHolder<_Opaque_ADMListEntry> {
    using HandleHolder::HandleHolder;
};
class IADMHierarchyList : public adm::HandleHolder<_Opaque_ADMHierarchyList> {
    using HandleHolder::HandleHolder;
};
class IADMDrawer : public adm::HandleHolder<_Opaque_ADMDrawer> {
    using HandleHolder::HandleHolder;
};
class IADMNotifier : public adm::HandleHolder<_Opaque_ADMNotifier> {
    using HandleHolder::HandleHolder;
};
class IADMTracker : public adm::HandleHolder<_Opaque_ADMTracker> {
    using HandleHolder::HandleHolder;
};
