#include "bench/Rig.h"

#include "bench/Recording.h"
#include "bench/Views.h"
#include "minihost/suites/BasicSuite.h"

#include <ctime>
#include <dlfcn.h>
#include <filesystem>
#include <stdexcept>

namespace bench {

namespace {

constexpr int apply_button = 3;
constexpr const char* no_panel = "the plug-in has opened no panel";

AEGP_PluginEntryProc entry_of_plugin() {
    const auto program = std::filesystem::read_symlink("/proc/self/exe");
    const auto path = program.parent_path() / "Tamborel.plugin";
    void* const library = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    void* const entry = library ? ::dlsym(library, kAEGPEntryName) : nullptr;
    if (!entry) throw std::runtime_error(::dlerror());
    return reinterpret_cast<AEGP_PluginEntryProc>(entry);
}

A_Err enter_by_way_of_recording(SPBasicSuite* basic, A_long major, A_long minor, AEGP_PluginID id,
                                AEGP_GlobalRefcon* refcon) {
    return entry_of_plugin()(Recording::basic_suite(basic), major, minor, id, refcon);
}

} // namespace

minihost::Scene cards(int count) {
    using namespace minihost;
    Scene scene;
    Selection selection;
    for (int i = 0; i < count; ++i) {
        auto card = std::make_unique<Layer>();
        card->name = "Card " + std::to_string(i + 1);
        card->three_d = true;
        card->size = {100 + i % 7 * 40, 80 + i % 5 * 30};
        card->transform.anchor_point = {card->size.width / 2.0, card->size.height / 2.0, 0};
        card->transform.position = scene.composition.middle();
        selection.push_back(scene.insert(std::move(card), scene.layer_count()));
    }
    auto camera = std::make_unique<Layer>();
    camera->name = "Camera 1";
    camera->kind = LayerKind::Camera;
    camera->transform.anchor_point = scene.composition.middle();
    camera->transform.position = {960, 540, -2666.6667};
    scene.insert(std::move(camera), scene.layer_count());
    scene.select(std::move(selection));
    return scene;
}

double processor_seconds() {
    timespec now{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

Rig::Rig(minihost::Scene scene, Plugin plugin)
    : _driver(minihost::make_dialog_driver()),
      _host(
          std::move(scene), {}, [](const std::string& line) { throw std::runtime_error(line); },
          [this] { return _driver->make_panel(); }) {
    if (plugin == Plugin::none) return;
    visit([&] {
        check(_host.call_entry(plugin == Plugin::recorded ? enter_by_way_of_recording
                                                          : entry_of_plugin(),
                               minihost::basic_suite));
    });
}

Rig::~Rig() {
    try {
        visit([&] { _host.shut_down(); });
    } catch (const std::exception&) {
        // Reported when it happened, or the measuring is over.
    }
}

void Rig::visit(const std::function<void()>& body) {
    _driver->with_pool([&] { _host.enter(body); });
}

void Rig::check(A_Err error) {
    if (error != 0) throw std::runtime_error("the plug-in failed: " + std::to_string(error));
}

void Rig::toggle() {
    visit([&] { check(_host.choose(_host.menu().at(0).command)); });
}

void Rig::open() {
    toggle();
    visit([&] { idle(); });
}

void Rig::close_panel() {
    visit([&] { _host.close_panels(); });
}

const minihost::PanelView& Rig::panel() const {
    const minihost::PanelView* const panel = _host.panels.view();
    if (!panel) throw std::runtime_error(no_panel);
    return *panel;
}

void Rig::set(int id, const std::string& value) {
    visit([&] { _driver->set(&panel(), id, std::to_string(id), value); });
}

void Rig::apply() {
    visit([&] { send_action(content(), apply_button); });
}

void Rig::undo_for_good() {
    minihost::Document& document = _host.document;
    document.undo();
    const minihost::Layer& top = document.scene().layer_at(0);
    document.rename_layer(top.id, top.name);
}

} // namespace bench
