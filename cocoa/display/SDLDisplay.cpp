#include "SDLDisplay.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <SDL.h>

namespace cocoa {
namespace {

// A character of Unicode's first plane, as UTF-8.
std::string utf8(unsigned code) {
    if (code < 0x80) return {static_cast<char>(code)};
    if (code < 0x800)
        return {static_cast<char>(0xc0 | code >> 6), static_cast<char>(0x80 | (code & 0x3f))};
    return {static_cast<char>(0xe0 | code >> 12), static_cast<char>(0x80 | (code >> 6 & 0x3f)),
            static_cast<char>(0x80 | (code & 0x3f))};
}

// Keys that write nothing, and the characters that stand for them in key events.
struct FunctionKey {
    SDL_Keycode key;
    unsigned character;
};
constexpr std::array<FunctionKey, 18> function_keys = {{{SDLK_RETURN, 0x0d},
                                                        {SDLK_KP_ENTER, 0x03},
                                                        {SDLK_TAB, 0x09},
                                                        {SDLK_ESCAPE, 0x1b},
                                                        {SDLK_BACKSPACE, 0x7f},
                                                        {SDLK_DELETE, 0xf728},
                                                        {SDLK_UP, 0xf700},
                                                        {SDLK_DOWN, 0xf701},
                                                        {SDLK_LEFT, 0xf702},
                                                        {SDLK_RIGHT, 0xf703},
                                                        {SDLK_HOME, 0xf729},
                                                        {SDLK_END, 0xf72b},
                                                        {SDLK_PAGEUP, 0xf72c},
                                                        {SDLK_PAGEDOWN, 0xf72d},
                                                        {SDLK_F1, 0xf704},
                                                        {SDLK_F2, 0xf705},
                                                        {SDLK_F5, 0xf708},
                                                        {SDLK_F10, 0xf70d}}};

unsigned function_character(SDL_Keycode key) {
    for (const FunctionKey& entry : function_keys)
        if (entry.key == key) return entry.character;
    return 0;
}

unsigned modifiers_of(int state) {
    unsigned result = 0;
    if (state & KMOD_SHIFT) result |= shift;
    if (state & KMOD_CTRL) result |= control;
    if (state & KMOD_ALT) result |= option;
    if (state & KMOD_GUI) result |= command;
    if (state & KMOD_CAPS) result |= caps_lock;
    return result;
}

class SDLDisplay final : public Display {
  public:
    SDLDisplay(SDL_Window* window, SDL_Renderer* renderer, double scale)
        : window_(window), renderer_(renderer), scale_(scale) {
        SDL_StartTextInput();
    }
    ~SDLDisplay() override {
        if (texture_) SDL_DestroyTexture(texture_);
        SDL_DestroyRenderer(renderer_);
        SDL_DestroyWindow(window_);
        SDL_QuitSubSystem(SDL_INIT_VIDEO);
    }
    SDLDisplay(const SDLDisplay&) = delete;
    SDLDisplay& operator=(const SDLDisplay&) = delete;

    ScreenSize size() const override {
        int width = 0, height = 0;
        SDL_GetRendererOutputSize(renderer_, &width, &height);
        return {width / scale_, height / scale_};
    }
    double scale() const override { return scale_; }
    bool is_seen() const override { return true; }
    bool has_user() const override { return true; }
    void set_title(const std::string& title) override {
        SDL_SetWindowTitle(window_, title.c_str());
    }
    std::string clipboard() const override {
        char* text = SDL_GetClipboardText();
        std::string result = text ? text : "";
        SDL_free(text);
        return result;
    }
    void set_clipboard(const std::string& text) override { SDL_SetClipboardText(text.c_str()); }

    void present(const ScreenPixels& pixels) override {
        if (!texture_ || pixels.width != texture_width_ || pixels.height != texture_height_) {
            if (texture_) SDL_DestroyTexture(texture_);
            texture_ = SDL_CreateTexture(renderer_, SDL_PIXELFORMAT_RGBA32,
                                         SDL_TEXTUREACCESS_STREAMING, pixels.width, pixels.height);
            texture_width_ = pixels.width;
            texture_height_ = pixels.height;
            if (texture_) SDL_SetTextureBlendMode(texture_, SDL_BLENDMODE_NONE);
        }
        if (!texture_) return;
        SDL_UpdateTexture(texture_, nullptr, pixels.rgba, pixels.width * 4);
        SDL_RenderClear(renderer_);
        // At its own size: while the window is being resized the picture is still the old one.
        const SDL_Rect place = {0, 0, pixels.width, pixels.height};
        SDL_RenderCopy(renderer_, texture_, nullptr, &place);
        SDL_RenderPresent(renderer_);
    }

    bool next_event(DisplayEvent& event, double seconds) override {
        if (take(event)) return true;
        SDL_Event raw;
        const int milliseconds = static_cast<int>(std::min(std::ceil(seconds * 1000), 60000.0));
        if (!(seconds > 0 ? SDL_WaitEventTimeout(&raw, milliseconds) : SDL_PollEvent(&raw)))
            return false;
        // All there is, so that of many movements of the mouse the last is left.
        do {
            translate(raw);
        } while (SDL_PollEvent(&raw));
        return take(event);
    }

  private:
    bool take(DisplayEvent& event) {
        if (pending_.empty()) return false;
        event = std::move(pending_.front());
        pending_.pop_front();
        return true;
    }

    // Window coordinates of the desktop to points of the screen.
    double points(int coordinate) const {
        int window_width = 1, window_height = 1, width = 1, height = 1;
        SDL_GetWindowSize(window_, &window_width, &window_height);
        SDL_GetRendererOutputSize(renderer_, &width, &height);
        return coordinate * (static_cast<double>(width) / window_width) / scale_;
    }

    DisplayEvent make(DisplayEvent::Kind kind) const {
        DisplayEvent event;
        event.kind = kind;
        event.modifiers = modifiers_of(held_);
        return event;
    }

    void push_mouse(DisplayEvent::Kind kind, int x, int y, int button, int clicks) {
        if (kind != DisplayEvent::Kind::mouse_move && button != SDL_BUTTON_LEFT &&
            button != SDL_BUTTON_RIGHT)
            return;
        DisplayEvent event = make(kind);
        event.x = points(x);
        event.y = points(y);
        event.right_button = button == SDL_BUTTON_RIGHT;
        event.clicks = clicks;
        // A movement replaces the one before it that nobody has taken yet.
        if (kind == DisplayEvent::Kind::mouse_move && !pending_.empty() &&
            pending_.back().kind == kind)
            pending_.back() = event;
        else
            pending_.push_back(event);
    }

    void push_key(DisplayEvent::Kind kind, const std::string& characters,
                  const std::string& unmodified, const SDL_KeyboardEvent* raw) {
        DisplayEvent event = make(kind);
        event.characters = characters;
        event.characters_unmodified = unmodified;
        if (raw) event.key_code = static_cast<unsigned short>(raw->keysym.scancode);
        if (raw) event.repeat = raw->repeat != 0;
        pending_.push_back(std::move(event));
    }

    // Keys that write come as text (which knows the layout and dead keys), except together with
    // Control or the system key: then they are commands, named by the key.
    void translate_key(const SDL_KeyboardEvent& raw) {
        const auto kind =
            raw.type == SDL_KEYDOWN ? DisplayEvent::Kind::key_down : DisplayEvent::Kind::key_up;
        const SDL_Keycode key = raw.keysym.sym;
        const bool shifted = raw.keysym.mod & KMOD_SHIFT;
        if (unsigned code = function_character(key)) {
            if (code == 0x09 && shifted) code = 0x19;
            push_key(kind, utf8(code), utf8(code), &raw);
        } else if (key >= 0x20 && key < 0x7f && (raw.keysym.mod & (KMOD_CTRL | KMOD_GUI))) {
            const int letter = shifted && key >= 'a' && key <= 'z' ? key - 'a' + 'A' : key;
            const std::string text = utf8(static_cast<unsigned>(letter));
            push_key(kind, text, text, &raw);
        }
    }

    void translate(const SDL_Event& raw) {
        using Kind = DisplayEvent::Kind;
        switch (raw.type) {
        case SDL_MOUSEBUTTONDOWN:
        case SDL_MOUSEBUTTONUP:
            mouse_ = {raw.button.x, raw.button.y};
            if (raw.button.button == SDL_BUTTON_LEFT)
                SDL_CaptureMouse(raw.type == SDL_MOUSEBUTTONDOWN ? SDL_TRUE : SDL_FALSE);
            push_mouse(raw.type == SDL_MOUSEBUTTONDOWN ? Kind::mouse_down : Kind::mouse_up,
                       raw.button.x, raw.button.y, raw.button.button, raw.button.clicks);
            break;
        case SDL_MOUSEMOTION:
            mouse_ = {raw.motion.x, raw.motion.y};
            push_mouse(Kind::mouse_move, raw.motion.x, raw.motion.y, 0, 0);
            break;
        case SDL_MOUSEWHEEL: {
            DisplayEvent event = make(Kind::wheel);
            event.x = points(mouse_.x);
            event.y = points(mouse_.y);
            const int sign = raw.wheel.direction == SDL_MOUSEWHEEL_FLIPPED ? -1 : 1;
            event.dx = -sign * raw.wheel.x;
            event.dy = sign * raw.wheel.y;
            pending_.push_back(event);
            break;
        }
        case SDL_KEYDOWN:
        case SDL_KEYUP:
            held_ = raw.key.keysym.mod;
            translate_key(raw.key);
            break;
        case SDL_TEXTINPUT:
            if (!(modifiers_of(held_) & (control | command)))
                push_key(Kind::key_down, raw.text.text, raw.text.text, nullptr);
            break;
        case SDL_WINDOWEVENT:
            if (raw.window.event == SDL_WINDOWEVENT_SIZE_CHANGED ||
                raw.window.event == SDL_WINDOWEVENT_EXPOSED)
                pending_.push_back(make(Kind::resized));
            break;
        case SDL_QUIT:
            pending_.push_back(make(Kind::quit));
            break;
        }
    }

    SDL_Window* window_;
    SDL_Renderer* renderer_;
    SDL_Texture* texture_ = nullptr;
    int texture_width_ = 0;
    int texture_height_ = 0;
    double scale_;
    std::deque<DisplayEvent> pending_;
    // As of the last event that was translated. The library tells how they are by now, which is of
    // no use while earlier events wait.
    int held_ = KMOD_NONE;
    SDL_Point mouse_ = {0, 0};
};

double desktop_scale() {
    float dpi = 0;
    if (SDL_GetDisplayDPI(0, nullptr, &dpi, nullptr) != 0 || !(dpi > 0)) return 1;
    return std::clamp(std::round(dpi / 96.0 * 2) / 2, 1.0, 3.0);
}

std::unique_ptr<Display> give_up(const char* step) {
    std::fprintf(stderr, "no window display: %s: %s\n", step, SDL_GetError());
    SDL_QuitSubSystem(SDL_INIT_VIDEO);
    return nullptr;
}

ScreenSize comfortable_size(double scale, ScreenSize least) {
    ScreenSize size{1280, 800};
    SDL_Rect room{};
    if (SDL_GetDisplayUsableBounds(0, &room) == 0) {
        size.width = std::max(least.width, std::min(size.width, room.w / scale));
        size.height = std::max(least.height, std::min(size.height, room.h / scale));
    }
    return size;
}

} // namespace

std::unique_ptr<Display> make_sdl_display(const std::string& title, ScreenSize size, double scale,
                                          ScreenSize least) {
    SDL_SetHint(SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1");
    if (SDL_InitSubSystem(SDL_INIT_VIDEO) != 0) return give_up("video");
    if (!(scale > 0)) scale = desktop_scale();
    if (!(size.width > 0)) size = comfortable_size(scale, least);
    SDL_Window* window =
        SDL_CreateWindow(title.c_str(), SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED,
                         static_cast<int>(std::lround(size.width * scale)),
                         static_cast<int>(std::lround(size.height * scale)), SDL_WINDOW_RESIZABLE);
    if (!window) return give_up("window");
    SDL_SetWindowMinimumSize(window, static_cast<int>(std::lround(least.width * scale)),
                             static_cast<int>(std::lround(least.height * scale)));
    SDL_Renderer* renderer = SDL_CreateRenderer(window, -1, SDL_RENDERER_SOFTWARE);
    if (!renderer) {
        SDL_DestroyWindow(window);
        return give_up("renderer");
    }
    return std::make_unique<SDLDisplay>(window, renderer, scale);
}

} // namespace cocoa
