#include "SDLDisplay.h"

#include "Foundation/TextEncoding.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <SDL.h>

namespace cocoa {
namespace {

std::string utf8(char32_t character) {
    std::string text;
    text_encoding::append_character(text, character);
    return text;
}

// Keys that type nothing, and the characters that stand for them in key events.
struct FunctionKey {
    SDL_Keycode key;
    unsigned character;
};
constexpr std::array<FunctionKey, 15> function_keys = {{{SDLK_RETURN, 0x0d},
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
                                                        {SDLK_F10, 0xf70d}}};

unsigned function_character(SDL_Keycode key) {
    for (const FunctionKey& entry : function_keys)
        if (entry.key == key) return entry.character;
    return 0;
}

unsigned modifiers_of(int state) {
    unsigned result = 0;
    if (state & KMOD_SHIFT) result |= Shift;
    if (state & KMOD_CTRL) result |= Control;
    if (state & KMOD_ALT) result |= Option;
    if (state & KMOD_GUI) result |= Command;
    return result;
}

class SDLDisplay final : public Display {
  public:
    SDLDisplay(SDL_Window* window, SDL_Renderer* renderer, double scale)
        : _window(window), _renderer(renderer), _scale(scale) {
        SDL_StartTextInput();
    }
    ~SDLDisplay() override {
        if (_texture) SDL_DestroyTexture(_texture);
        SDL_DestroyRenderer(_renderer);
        SDL_DestroyWindow(_window);
        SDL_QuitSubSystem(SDL_INIT_VIDEO);
    }
    SDLDisplay(const SDLDisplay&) = delete;
    SDLDisplay& operator=(const SDLDisplay&) = delete;

    ScreenSize size() const override {
        int width = 0, height = 0;
        SDL_GetRendererOutputSize(_renderer, &width, &height);
        return {width / _scale, height / _scale};
    }
    double scale() const override { return _scale; }
    bool has_user() const override { return true; }
    void set_title(const std::string& title) override {
        SDL_SetWindowTitle(_window, title.c_str());
    }
    std::string clipboard() const override {
        char* text = SDL_GetClipboardText();
        std::string result = text ? text : "";
        SDL_free(text);
        return result;
    }
    void set_clipboard(const std::string& text) override { SDL_SetClipboardText(text.c_str()); }

    void present(const ScreenPixels& pixels) override {
        if (!_texture || pixels.width != _texture_width || pixels.height != _texture_height) {
            if (_texture) SDL_DestroyTexture(_texture);
            _texture = SDL_CreateTexture(_renderer, SDL_PIXELFORMAT_RGBA32,
                                         SDL_TEXTUREACCESS_STREAMING, pixels.width, pixels.height);
            _texture_width = pixels.width;
            _texture_height = pixels.height;
            if (_texture) SDL_SetTextureBlendMode(_texture, SDL_BLENDMODE_NONE);
        }
        if (!_texture) return;
        SDL_UpdateTexture(_texture, nullptr, pixels.rgba, pixels.width * 4);
        SDL_RenderClear(_renderer);
        // At its own size: during a resize of the window the picture is still the old one.
        const SDL_Rect place = {0, 0, pixels.width, pixels.height};
        SDL_RenderCopy(_renderer, _texture, nullptr, &place);
        SDL_RenderPresent(_renderer);
    }

    bool next_event(DisplayEvent& event, double seconds) override {
        if (take(event)) return true;
        SDL_Event raw;
        const int milliseconds = static_cast<int>(std::min(std::ceil(seconds * 1000), 60000.0));
        if (!(seconds > 0 ? SDL_WaitEventTimeout(&raw, milliseconds) : SDL_PollEvent(&raw)))
            return false;
        // Everything that waits, so that only the last of many mouse movements is left.
        do {
            translate(raw);
        } while (SDL_PollEvent(&raw));
        return take(event);
    }

  private:
    bool take(DisplayEvent& event) {
        if (_pending.empty()) return false;
        event = std::move(_pending.front());
        _pending.pop_front();
        return true;
    }

    // Window coordinates of the desktop to points of the screen.
    double points(int coordinate) const {
        int window_width = 1, window_height = 1, width = 1, height = 1;
        SDL_GetWindowSize(_window, &window_width, &window_height);
        SDL_GetRendererOutputSize(_renderer, &width, &height);
        return coordinate * (static_cast<double>(width) / window_width) / _scale;
    }

    DisplayEvent make(DisplayEvent::Kind kind) const {
        DisplayEvent event;
        event.kind = kind;
        event.modifiers = modifiers_of(_held);
        return event;
    }

    void push_mouse(DisplayEvent::Kind kind, int x, int y, int button, int clicks) {
        if (kind != DisplayEvent::Kind::MouseMove && button != SDL_BUTTON_LEFT &&
            button != SDL_BUTTON_RIGHT)
            return;
        DisplayEvent event = make(kind);
        event.x = points(x);
        event.y = points(y);
        event.right_button = button == SDL_BUTTON_RIGHT;
        event.clicks = clicks;
        // A movement replaces one that waits just before it.
        if (kind == DisplayEvent::Kind::MouseMove && !_pending.empty() &&
            _pending.back().kind == kind)
            _pending.back() = event;
        else
            _pending.push_back(event);
    }

    void push_key(DisplayEvent::Kind kind, const std::string& characters) {
        DisplayEvent event = make(kind);
        event.characters = characters;
        _pending.push_back(std::move(event));
    }

    // Keys that type come as text (which knows the layout and dead keys), except with Control or
    // the system key: then they are commands, named by the key.
    void translate_key(const SDL_KeyboardEvent& raw) {
        const auto kind =
            raw.type == SDL_KEYDOWN ? DisplayEvent::Kind::KeyDown : DisplayEvent::Kind::KeyUp;
        const SDL_Keycode key = raw.keysym.sym;
        const bool shifted = raw.keysym.mod & KMOD_SHIFT;
        if (unsigned code = function_character(key)) {
            if (code == 0x09 && shifted) code = 0x19;
            push_key(kind, utf8(code));
        } else if (key >= 0x20 && key < 0x7f && (raw.keysym.mod & (KMOD_CTRL | KMOD_GUI))) {
            const int letter = shifted && key >= 'a' && key <= 'z' ? key - 'a' + 'A' : key;
            push_key(kind, utf8(static_cast<char32_t>(letter)));
        }
    }

    void translate(const SDL_Event& raw) {
        using Kind = DisplayEvent::Kind;
        switch (raw.type) {
        case SDL_MOUSEBUTTONDOWN:
        case SDL_MOUSEBUTTONUP:
            _mouse = {raw.button.x, raw.button.y};
            if (raw.button.button == SDL_BUTTON_LEFT)
                SDL_CaptureMouse(raw.type == SDL_MOUSEBUTTONDOWN ? SDL_TRUE : SDL_FALSE);
            push_mouse(raw.type == SDL_MOUSEBUTTONDOWN ? Kind::MouseDown : Kind::MouseUp,
                       raw.button.x, raw.button.y, raw.button.button, raw.button.clicks);
            break;
        case SDL_MOUSEMOTION:
            _mouse = {raw.motion.x, raw.motion.y};
            push_mouse(Kind::MouseMove, raw.motion.x, raw.motion.y, 0, 0);
            break;
        case SDL_MOUSEWHEEL: {
            DisplayEvent event = make(Kind::Wheel);
            event.x = points(_mouse.x);
            event.y = points(_mouse.y);
            const int sign = raw.wheel.direction == SDL_MOUSEWHEEL_FLIPPED ? -1 : 1;
            event.lines = sign * raw.wheel.y;
            _pending.push_back(event);
            break;
        }
        case SDL_KEYDOWN:
        case SDL_KEYUP:
            _held = raw.key.keysym.mod;
            translate_key(raw.key);
            break;
        case SDL_TEXTINPUT:
            if (!(modifiers_of(_held) & (Control | Command)))
                push_key(Kind::KeyDown, raw.text.text);
            break;
        case SDL_WINDOWEVENT:
            if (raw.window.event == SDL_WINDOWEVENT_SIZE_CHANGED ||
                raw.window.event == SDL_WINDOWEVENT_EXPOSED)
                _pending.push_back(make(Kind::Resized));
            break;
        case SDL_QUIT:
            _pending.push_back(make(Kind::Quit));
            break;
        }
    }

    SDL_Window* _window;
    SDL_Renderer* _renderer;
    SDL_Texture* _texture = nullptr;
    int _texture_width = 0;
    int _texture_height = 0;
    double _scale;
    std::deque<DisplayEvent> _pending;
    // As of the last translated event. The library would report the present state, which is later
    // than the events that wait.
    int _held = KMOD_NONE;
    SDL_Point _mouse = {0, 0};
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
