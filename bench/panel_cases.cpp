// The panel: drawn beside a bare drawing of the same, opened and closed beside plain controls.

#include "bench/BarePanel.h"
#include "bench/Figures.h"
#include "bench/Rig.h"
#include "bench/Views.h"

#include <memory>

namespace bench {

namespace {

constexpr int layers = 12;
constexpr double scale = 2;

struct Shown {
    Rig rig{cards(layers), Rig::Plugin::direct};
    std::vector<minihost::Control> controls;
    double width, height; // points

    Shown() {
        rig.open();
        controls = rig.dialog_driver().controls(&rig.panel());
        const minihost::Picture picture = draw();
        width = picture.width / scale, height = picture.height / scale;
    }
    minihost::Picture draw() {
        minihost::Picture picture;
        rig.visit([&] { picture = rig.dialog_driver().picture(&rig.panel(), scale); });
        return picture;
    }
};

Pair drawing() {
    const auto shown = std::make_shared<Shown>();
    return {[shown] { return seconds_of([&] { shown->draw(); }); },
            [shown] {
                return seconds_of(
                    [&] { draw_bare_panel(shown->controls, shown->width, shown->height, scale); });
            }};
}

// From the menu's command to a panel that is shown, and its end.
Pair opening() {
    const auto shown = std::make_shared<Shown>();
    return {[shown] {
                return seconds_of([&] {
                    shown->rig.close_panel();
                    shown->rig.toggle();
                });
            },
            [shown] {
                return seconds_of([&] {
                    open_and_close_plain_controls(shown->controls, shown->width, shown->height);
                });
            }};
}

} // namespace

std::vector<Case> panel_cases() {
    return {{"draw the panel", 0, 101, 2, drawing, [] { Shown(); }},
            {"open and close the panel", 0, 101, 0, opening, [] {
                 Rig rig(cards(layers), Rig::Plugin::direct);
                 rig.open();
             }}};
}

} // namespace bench
