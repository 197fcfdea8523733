#include "minihost/suites/Colors.h"

namespace minihost {

namespace {

// From 8 to 16 bits a component.
constexpr PF_App_Color color(unsigned rgb) {
    const auto component = [rgb](int shift) {
        return static_cast<A_u_short>((rgb >> shift & 0xFF) * 257);
    };
    return {component(16), component(8), component(0)};
}

struct Row {
    PF_App_ColorType selector;
    unsigned dark, light; // 0xRRGGBB
};

// The comments say what controls use a selector for.
constexpr Row rows[] = {
    {0, 0x4b4b4b, 0xc4c4c4},                              // frames
    {1, 0x3c3c3c, 0xdedede},                              // fill of a field
    {2, 0xdcdcdc, 0x1c1c1c},                              // text
    {3, 0x5a5a5a, 0xf4f4f4},                              // light edge
    {5, 0x1e1e1e, 0x9c9c9c},                              // dark edge
    {6, 0x2f5f9e, 0x8db8ea},                              // what is selected
    {7, 0x181818, 0x8a8a8a},                              // button: outline
    {8, 0x585858, 0xececec},                              // face
    {9, 0xf0f0f0, 0x141414},                              // title, tick and dot
    {10, 0x6c6c6c, 0xffffff},                             // light edges
    {11, 0x626262, 0xf4f4f4},   {12, 0x2a2a2a, 0xa8a8a8}, // bottom and sides
    {13, 0x363636, 0xb8b8b8},   {14, 0x101010, 0x6c6c6c}, // button, pressed
    {15, 0x3a3a3a, 0xbcbcbc},   {16, 0xffffff, 0x000000}, {17, 0x303030, 0xb0b0b0},
    {18, 0x343434, 0xb4b4b4},   {19, 0x202020, 0x8c8c8c}, {20, 0x262626, 0x949494},
    {23, 0x7e7e7e, 0x8c8c8c}, // text that is disabled
    {28, 0x2c2c2c, 0xb4b4b4}, // button, disabled
    {29, 0x404040, 0xd8d8d8},   {30, 0x7e7e7e, 0x8c8c8c}, {31, 0x484848, 0xe0e0e0},
    {32, 0x444444, 0xdcdcdc},   {33, 0x323232, 0xc0c0c0}, {34, 0x383838, 0xc8c8c8},
    {42, 0x282828, 0xf0f0f0},   // behind pictures
    {43, 0xe6e6e6, 0x202020},   // lines in them
    {45, 0x3d7edb, 0x2866c0},   // what is hot
    {1000, 0x353535, 0xd2d2d2}, // the panel
};

} // namespace

std::optional<Palette> palette_of_name(std::string_view name) {
    if (name == "dark") return Palette::Dark;
    if (name == "light") return Palette::Light;
    return std::nullopt;
}

PF_App_Color interface_color(Palette palette, PF_App_ColorType selector) {
    const bool dark = palette == Palette::Dark;
    for (const Row& row : rows)
        if (row.selector == selector) return color(dark ? row.dark : row.light);
    return color(dark ? 0x505050 : 0xc8c8c8);
}

} // namespace minihost
