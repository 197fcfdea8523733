#include "tests/ADMLibrary/support/FakeHost.h"

#include <algorithm>
#include <ostream>

bool FakeHost::refuse_colors = false;
std::string FakeHost::panel_title;
std::vector<std::string> FakeHost::missing;
std::vector<std::string> FakeHost::calls;

std::ostream& operator<<(std::ostream& out, const Rgb& color) {
    return out << "rgb(" << color.red << ", " << color.green << ", " << color.blue << ")";
}

namespace {

A_Err get_color(PF_App_ColorType selector, PF_App_Color* color) {
    const Rgb rgb = FakeHost::color(selector);
    const auto sixteen_bits = [](int part) { return static_cast<A_u_short>(part * 257); };
    *color = {sixteen_bits(rgb.red), sixteen_bits(rgb.green), sixteen_bits(rgb.blue)};
    return FakeHost::refuse_colors ? 4 : 0;
}

A_Err set_title(AEGP_PanelH, const A_char* title) {
    FakeHost::panel_title = title;
    return 0;
}

A_Err acquire(const char* name, A_long version, const void** suite) {
    FakeHost::calls.push_back("acquire " + std::string(name) + " " + std::to_string(version));
    if (std::ranges::count(FakeHost::missing, name)) return 1;
    *suite = &FakeHost::app;
    return 0;
}

A_Err release(const char* name, A_long version) {
    FakeHost::calls.push_back("release " + std::string(name) + " " + std::to_string(version));
    return 0;
}

} // namespace

SPBasicSuite FakeHost::basic = {acquire, release};
AEGP_PanelSuite1 FakeHost::panels = {nullptr, nullptr, set_title};
PFAppSuite6 FakeHost::app = {nullptr, get_color};

FakeHost::FakeHost() {
    refuse_colors = false;
    panel_title.clear();
    missing.clear();
    calls.clear();
    sSPBasic = &basic;
    sPFAppSuite = &app;
}

FakeHost::~FakeHost() {
    sSPBasic = nullptr;
    sPFAppSuite = nullptr;
}

Rgb FakeHost::color(short selector) {
    // Far apart for neighbouring selectors, so that a faint sheen does not turn one into another.
    const int n = selector == 1000 ? 63 : selector;
    return {(n * 5 % 8) * 32 + 16, (n / 8 % 8) * 32 + 16, selector == 1000 ? 240 : 128};
}
