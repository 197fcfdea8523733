// A host for the toolkit's tests: interface colours that tell their own number, and a record of
// what is asked of it.

#pragma once

#include "ADMLibrary/ADM.h"

#include <array>
#include <string>
#include <vector>

struct Rgb {
    int red = 0, green = 0, blue = 0;
    bool operator==(const Rgb&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Rgb& color);

class FakeHost {
  public:
    // Becomes the host of the toolkit; at the end there is none.
    FakeHost();
    ~FakeHost();

    // The colour of a selector, 8 bits each: no two selectors share one.
    static Rgb color(short selector);

    // Whether the host refuses the next queries of a colour, having written to it.
    static bool refuse_colors;
    static std::string panel_title;

    // The basic suite, which has the suites named here and counts their uses.
    static std::vector<std::string> missing;
    static std::vector<std::string> calls;
    static SPBasicSuite basic;
    static AEGP_PanelSuite1 panels;
    static PFAppSuite6 app;
};
