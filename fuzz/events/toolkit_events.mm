// Dialogs with items of all types, used by hands that do anything, while the program changes them,
// also in answer to the user. It asserts nothing itself: the sanitizers do.

#include "ADMLibrary/ADM.h"
#include "fuzz/events/driver.h"
#include "fuzz/events/UsersHands.h"
#include "tests/ADMLibrary/support/FakeHost.h"

#include <algorithm>
#include <AppKit/NSDisplayStandIn.h>
#include <Cocoa/Cocoa.h>
#include <iterator>

namespace {

const char* const types[] = {kADMTextPushButtonType,  kADMTextCheckBoxType,
                             kADMTextRadioButtonType, kADMTextEditType,
                             kADMTextStaticType,      kADMFrameType,
                             kADMPopupListType,       kADMSliderType,
                             kADMPictureStaticType,   kADMPicturePushButtonType};
const char* const texts[] = {"", "0", "-1", "1e9", "some text", "\x8a\xff", "nan", "%s%n"};

class Program {
  public:
    explicit Program(fuzz::Bytes& bytes) : _bytes(bytes) {
        running = this;
        _window = [[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, 300, 260)
                                              styleMask:1
                                                backing:2
                                                  defer:YES];
        [_window setReleasedWhenClosed:NO];
        [_window makeKeyAndOrderFront:nil];
    }
    ~Program() {
        for (_Opaque_ADMDialog* dialog : _dialogs) sADMDialog->Destroy(dialog);
        fuzz::let_go();
        [_window close];
        [_window release];
        running = nullptr;
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    void do_one() {
        const auto what = _bytes.take<std::uint8_t>();
        if (what >= 96) {
            fuzz::use_hands(_bytes);
            return;
        }
        _Opaque_ADMDialog*& dialog = _dialogs[_bytes.take<std::uint8_t>() % std::size(_dialogs)];
        if (what % 16 == 0) {
            sADMDialog->Destroy(dialog);
            dialog = nullptr;
        } else if (!dialog) {
            dialog = make();
        } else {
            change(dialog, what);
        }
    }

  private:
    static constexpr int deepest = 3; // changes may be answered by changes
    static Program* running;

    static void answer(_Opaque_ADMDialog* dialog, _Opaque_ADMNotifier* notifier) {
        sADMDialog->DefaultNotify(dialog, notifier);
        if (!running || running->_bytes.empty() || running->_depth >= deepest) return;
        const auto what = running->_bytes.take<std::uint8_t>();
        if (what % 16 == 0) {
            std::replace(std::begin(running->_dialogs), std::end(running->_dialogs), dialog,
                         static_cast<_Opaque_ADMDialog*>(nullptr));
            sADMDialog->Destroy(dialog);
            return;
        }
        ++running->_depth;
        running->change(dialog, what);
        --running->_depth;
    }

    _Opaque_ADMDialog* make() {
        const int style = _bytes.integer(0, 13);
        _Opaque_ADMDialog* dialog =
            style < 12
                ? sADMDialog->Create(nullptr, "window", 0, style, nullptr, nullptr, 0)
                : sADMDialog->CreatePanel(nullptr, "panel", 0, nullptr, nullptr, &FakeHost::panels,
                                          nullptr, [_window contentView], &_functions, &_refcon);
        sADMDialog->SetNotifyProc(dialog, answer);
        for (int count = _bytes.integer(0, 12); count > 0; --count) add(dialog);
        sADMDialog->Show(dialog, true);
        return dialog;
    }

    Rect rect() {
        const auto part = [&] { return static_cast<std::int16_t>(_bytes.integer(-20, 280)); };
        return {part(), part(), part(), part()};
    }
    void add(_Opaque_ADMDialog* dialog) {
        const Rect r = rect();
        const char* type = types[_bytes.take<std::uint8_t>() % std::size(types)];
        sADMItem->Create(dialog, _bytes.integer(1, 30), type, &r, nullptr, nullptr, 0);
    }

    void change(_Opaque_ADMDialog* dialog, int what) {
        const Rect r = rect();
        _Opaque_ADMItem* item = sADMDialog->GetItem(dialog, _bytes.integer(1, 30));
        _Opaque_ADMList* list = sADMItem->GetList(item);
        const char* text = texts[_bytes.take<std::uint8_t>() % std::size(texts)];
        switch (what % 16) {
        case 1:
            return add(dialog);
        case 2:
            return sADMItem->SetText(item, text);
        case 3:
            return sADMItem->Enable(item, _bytes.flag());
        case 4:
            return sADMItem->Show(item, _bytes.flag());
        case 5:
            return sADMItem->SetLocalRect(item, &r);
        case 6:
            return sADMItem->SetFloatValue(item, static_cast<float>(_bytes.take<double>()));
        case 7:
            return sADMItem->SetBooleanValue(item, _bytes.flag());
        case 8:
            return sADMEntry->SetText(sADMList->InsertEntry(list, _bytes.integer(0, 3)), text);
        case 9:
            return sADMList->RemoveEntry(list, _bytes.integer(0, 3));
        case 10:
            return sADMEntry->Select(sADMList->GetActiveEntry(list), _bytes.flag());
        case 11:
            return sADMDialog->Show(dialog, _bytes.flag());
        case 12:
            return sADMDialog->SetLocalRect(dialog, &r);
        case 13:
            return sADMItem->SetFont(item, _bytes.integer(0, 14));
        case 14:
            display_all();
            return;
        default:
            read(item);
        }
    }
    static void display_all() {
        NSArray* windows = [[NSApplication sharedApplication] windows];
        for (NSUInteger i = 0; i < [windows count]; ++i)
            [[[windows objectAtIndex:i] contentView] display];
    }
    static void read(_Opaque_ADMItem* item) {
        Rect bounds;
        Point best;
        sADMItem->GetBoundsRect(item, &bounds);
        sADMItem->GetBestSize(item, &best);
        sADMItem->GetFloatValue(item);
        sADMItem->GetIntValue(item);
        sADMItem->GetBooleanValue(item);
    }

    fuzz::Bytes& _bytes;
    NSWindow* _window;
    _Opaque_ADMDialog* _dialogs[3] = {};
    AEGP_PanelFunctions1 _functions = {};
    _AEGP_PanelRefcon* _refcon = nullptr;
    int _depth = 0;
};

Program* Program::running = nullptr;

} // namespace

void fuzz::try_input(Bytes& bytes) {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    [NSApplication sharedApplication];
    {
        const FakeHost host;
        Program program(bytes);
        while (!bytes.empty()) program.do_one();
    }
    NSForgetShownAlerts();
    [pool drain];
}
