// Composes the screen from the windows' pictures.
#include "NSWindowPrivate.h"
#include "WindowServer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace cocoa {

namespace {

struct Picture {
    unsigned char* rgba;
    int width;
    int height;
};

constexpr std::array<unsigned char, 4> desktop_color = {0x14, 0x14, 0x16, 0xff};

// The part of a row or column that is on the screen.
struct Span {
    int begin;
    int end;
};
Span clip(int start, int length, int room) {
    return {std::max(0, -start), std::min(length, room - start)};
}

void blend_row(unsigned char* to, const unsigned char* from, int count) {
    for (int i = 0; i < count * 4; i += 4) {
        const unsigned rest = 255u - from[i + 3];
        for (int c = 0; c < 4; ++c)
            to[i + c] = static_cast<unsigned char>(from[i + c] + (to[i + c] * rest + 127) / 255);
    }
}

void place(Picture screen, const NSWindowState& state, int left, int top, bool transparent) {
    const Span rows = clip(top, state.height, screen.height);
    const Span columns = clip(left, state.width, screen.width);
    const int count = columns.end - columns.begin;
    if (count <= 0) return;
    for (int y = rows.begin; y < rows.end; ++y) {
        unsigned char* to =
            screen.rgba + (static_cast<size_t>(top + y) * screen.width + left + columns.begin) * 4;
        const unsigned char* from =
            state.pixels.data() + (static_cast<size_t>(y) * state.width + columns.begin) * 4;
        if (transparent)
            blend_row(to, from, count);
        else
            std::memcpy(to, from, static_cast<size_t>(count) * 4);
    }
}

// Darkens the surroundings of a window, less with the distance.
void cast_shadow(Picture screen, int left, int top, int width, int height, int reach) {
    const Span rows = clip(top - reach, height + 2 * reach, screen.height);
    const Span columns = clip(left - reach, width + 2 * reach, screen.width);
    for (int y = rows.begin; y < rows.end; ++y) {
        const int dy = std::max({reach - y, y - (height + reach - 1), 0});
        for (int x = columns.begin; x < columns.end; ++x) {
            const int dx = std::max({reach - x, x - (width + reach - 1), 0});
            if (dx == 0 && dy == 0) {
                x += width - 1;
                continue;
            }
            const double distance = std::hypot(dx, dy) / reach;
            if (distance >= 1) continue;
            const double keep = 1 - 0.45 * (1 - distance) * (1 - distance);
            unsigned char* pixel =
                screen.rgba +
                (static_cast<size_t>(top - reach + y) * screen.width + left - reach + x) * 4;
            for (int c = 0; c < 3; ++c) pixel[c] = static_cast<unsigned char>(pixel[c] * keep);
        }
    }
}

} // namespace

std::vector<unsigned char> WindowServer::compose(int& width, int& height) {
    const double scale = _display->scale();
    const NSSize size = screen_size();
    width = std::max(1, static_cast<int>(std::lround(size.width * scale)));
    height = std::max(1, static_cast<int>(std::lround(size.height * scale)));
    std::vector<unsigned char> pixels(static_cast<size_t>(width) * height * 4);
    for (size_t i = 0; i < pixels.size(); i += 4)
        std::memcpy(pixels.data() + i, desktop_color.data(), 4);
    const Picture screen = {pixels.data(), width, height};
    for (auto i = _ordered.rbegin(); i != _ordered.rend(); ++i) {
        NSWindow* window = *i;
        const NSWindowState& state = *[window state];
        if (state.pixels.empty()) continue;
        const NSRect frame = [window frame];
        const int left = static_cast<int>(std::lround(NSMinX(frame) * scale));
        const int top = static_cast<int>(std::lround((size.height - NSMaxY(frame)) * scale));
        // No shadow of windows as wide as the screen.
        if (frame.size.width < size.width)
            cast_shadow(screen, left, top, state.width, state.height, static_cast<int>(12 * scale));
        place(screen, state, left, top, [window isTransparent]);
    }
    return pixels;
}

void WindowServer::update() {
    if (!_display->has_user()) return;
    const std::vector<NSWindow*> windows = _ordered;
    for (NSWindow* window : windows)
        if (std::find(_ordered.begin(), _ordered.end(), window) != _ordered.end())
            [window displayIfNeeded];
    if (!_stale) return;
    _stale = false;
    int width = 0, height = 0;
    std::vector<unsigned char> pixels = compose(width, height);
    ++_frames;
    if (pixels == _shown) return; // of the same size: a change of display clears _shown
    _shown = std::move(pixels);
    _display->present({_shown.data(), width, height});
}

} // namespace cocoa
