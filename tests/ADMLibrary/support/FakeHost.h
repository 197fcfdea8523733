// A host for the toolkit's tests: a different colour for each selector, and a record of the calls.
// While one exists it is the toolkit's host.

#pragma once

#include "ADMLibrary/ADM.h"

#include <string>
#include <vector>

struct Rgb {
    int red = 0, green = 0, blue = 0;
    bool operator==(const Rgb&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Rgb& color);

class FakeHost {
  public:
    FakeHost();
    ~FakeHost();

    // The colour of a selector, 8 bits each; different for all selectors that are used.
    static Rgb color(short selector);

    static bool refuse_colors; // fails after writing to the colour
    static std::string panel_title;
    static std::vector<std::string> missing; // suites
    static std::vector<std::string> calls;   // of the basic suite
    static SPBasicSuite basic;
    static AEGP_PanelSuite1 panels;
    static PFAppSuite6 app;
};
