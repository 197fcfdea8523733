// What is seen in a preview and what is not, in pixels and in SVG, and how its file is written.

#include "minihost/model/SceneReader.h"
#include "minihost/preview/Preview.h"
#include "tests/minihost/support/files.h"

#include <cairo.h>
#include <glib.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <functional>

namespace minihost {
namespace {

constexpr double eye = 8000.0 / 3.0; // the default camera's distance, 1920 · 50/36
constexpr Color red{220, 40, 40}, blue{40, 60, 220}, pale{240, 240, 240};

struct Pixel {
    int r, g, b;
    bool operator==(const Pixel&) const = default;
    bool is_red() const { return r > 2 * b && r > 60; }
    bool is_blue() const { return b > 2 * r && b > 60; }
    int sum() const { return r + g + b; }
};

std::ostream& operator<<(std::ostream& to, const Pixel& p) {
    return to << "rgb(" << p.r << ", " << p.g << ", " << p.b << ")";
}

// A preview's pixels. At scale 1 a composition 1920 wide is 960 wide: its coordinates are halved.
class Picture {
  public:
    explicit Picture(const Scene& scene, double scale = 1) {
        std::string file = encode_preview(scene, PreviewFormat::Png, scale);
        const char* at = file.data();
        _surface = cairo_image_surface_create_from_png_stream(
            [](void* from, unsigned char* to, unsigned int size) {
                const char*& p = *static_cast<const char**>(from);
                std::memcpy(to, p, size);
                p += size;
                return CAIRO_STATUS_SUCCESS;
            },
            &at);
    }
    ~Picture() { cairo_surface_destroy(_surface); }
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    int width() const { return cairo_image_surface_get_width(_surface); }
    int height() const { return cairo_image_surface_get_height(_surface); }
    Pixel at(int x, int y) const {
        const unsigned char* row = cairo_image_surface_get_data(_surface) +
                                   std::ptrdiff_t(y) * cairo_image_surface_get_stride(_surface);
        std::uint32_t p;
        std::memcpy(&p, row + std::ptrdiff_t(x) * 4, 4);
        return {int(p >> 16 & 255), int(p >> 8 & 255), int(p & 255)};
    }
    // How many pixels differ in a rectangle.
    int differences(const Picture& other, int x0, int y0, int x1, int y1) const {
        int count = 0;
        for (int y = y0; y < y1; ++y) {
            for (int x = x0; x < x1; ++x) count += !(at(x, y) == other.at(x, y));
        }
        return count;
    }

  private:
    cairo_surface_t* _surface;
};

// A solid of 200 by 120 in the middle of the composition.
Layer card(const Color& color, std::string name = "") {
    Layer layer;
    layer.name = std::move(name);
    layer.kind = LayerKind::Solid;
    layer.three_d = true;
    layer.color = color;
    layer.size = {200, 120};
    layer.transform.anchor_point = {100, 60, 0};
    layer.transform.position = {960, 540, 0};
    return layer;
}

Layer card_at(const Color& color, const Vec3& position, std::string name = "") {
    Layer layer = card(color, std::move(name));
    layer.transform.position = position;
    return layer;
}

Layer camera(const Vec3& position, const Vec3& interest) {
    Layer layer = card_at(pale, position, "Camera 1");
    layer.kind = LayerKind::Camera;
    layer.transform.anchor_point = interest;
    return layer;
}

Scene scene_of(const std::vector<Layer>& layers) {
    Scene scene;
    for (const Layer& layer : layers) {
        scene.insert(std::make_unique<Layer>(layer), scene.layer_count());
    }
    return scene;
}

std::string svg_of(const Scene& scene) {
    return encode_preview(scene, PreviewFormat::Svg, 1);
}

bool contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
}

// Whether a parser accepts it, and it has no control characters, which XML forbids.
bool well_formed(const std::string& text) {
    const GMarkupParser nothing{};
    GMarkupParseContext* parse = g_markup_parse_context_new(&nothing, {}, nullptr, nullptr);
    const bool sound =
        g_markup_parse_context_parse(parse, text.data(), gssize(text.size()), nullptr) &&
        g_markup_parse_context_end_parse(parse, nullptr);
    g_markup_parse_context_free(parse);
    const auto is_control = [](unsigned char c) { return c < 0x20 && c != '\n'; };
    return sound && std::none_of(text.begin(), text.end(), is_control);
}

TEST(Preview, ShowsACardWhereTheDefaultCameraSeesIt) {
    const Picture empty(Scene{}), far(scene_of({card(red)}));
    ASSERT_EQ(far.width(), 960);
    ASSERT_EQ(far.height(), 540);
    // 860 to 1060 and 480 to 600, halved.
    for (const auto& [x, y] : {std::pair{433, 243}, {526, 243}, {433, 296}, {526, 296}}) {
        EXPECT_TRUE(far.at(x, y).is_red()) << x << ", " << y << ": " << far.at(x, y);
    }
    for (const auto& [x, y] : {std::pair{427, 270}, {533, 270}, {480, 237}, {480, 303}}) {
        EXPECT_EQ(far.at(x, y), empty.at(x, y)) << x << ", " << y;
    }
    // At half the distance it is twice as large.
    const Picture near(scene_of({card_at(red, {960, 540, -eye / 2})}));
    EXPECT_TRUE(near.at(383, 213).is_red()) << near.at(383, 213);
    EXPECT_EQ(near.at(376, 270), empty.at(376, 270));
}

TEST(Preview, LooksThroughTheFirstCamera) {
    // Seen from the left, a card is edge-on, and one that is turned toward the camera is full.
    Layer turned = card(blue);
    turned.transform.orientation = {0, 90, 0};
    const Layer from_left = camera({960 - eye, 540, 0}, {960, 540, 0});
    const Layer front = camera({960, 540, -eye}, {960, 540, 0});
    EXPECT_TRUE(Picture(scene_of({card(red), turned, from_left, front})).at(440, 250).is_blue());
    EXPECT_TRUE(Picture(scene_of({front, card(red), turned, from_left})).at(440, 250).is_red());
}

TEST(Preview, PaintsFromFarToNear) {
    const Layer far = card_at(red, {960, 540, 300}), near = card_at(blue, {960, 540, -300});
    EXPECT_TRUE(Picture(scene_of({far, near})).at(480, 270).is_blue());
    EXPECT_TRUE(Picture(scene_of({near, far})).at(480, 270).is_blue());
    // Equally far: the upper layer.
    EXPECT_TRUE(Picture(scene_of({card(red), card_at(blue, {990, 540, 0})})).at(500, 270).is_red());
    EXPECT_TRUE(
        Picture(scene_of({card_at(blue, {990, 540, 0}), card(red)})).at(500, 270).is_blue());
}

TEST(Preview, LeavesLayersThatAreNot3DInTheirOrder) {
    Layer flat = card_at(red, {960, 540, -9000});
    flat.three_d = false;
    flat.transform.orientation = {80, 80, 0};
    const Layer near = card_at(blue, {990, 540, -300});
    EXPECT_TRUE(Picture(scene_of({flat, near})).at(500, 270).is_red());
    EXPECT_TRUE(Picture(scene_of({near, flat})).at(500, 270).is_blue());
    // 3D layers below a 2D one are behind it, however near; the camera has no effect on it.
    const Picture divided(scene_of(
        {card_at(blue, {760, 540, 900}), flat, near, camera({0, 0, -4000}, {960, 540, 0})}));
    EXPECT_TRUE(divided.at(500, 270).is_red()) << divided.at(500, 270);
}

TEST(Preview, ShowsNothingBehindTheCameraOrBesideThePicture) {
    const Picture empty(Scene{});
    for (const Vec3& position : {Vec3{960, 540, -eye - 50}, Vec3{-3000, 540, 0}}) {
        const Scene scene = scene_of({card_at(red, position, "Lost")});
        const Picture picture(scene);
        EXPECT_EQ(picture.differences(empty, 0, 0, 960, 490), 0)
            << position[0]; // above the caption
        EXPECT_FALSE(contains(svg_of(scene), "Lost"));
    }
}

TEST(Preview, UsesValuesAtTheCurrentTime) {
    Layer moving = card(red);
    *moving.keys_of(Stream::Position) = {{0, {160, 540, 0}}, {2, {560, 540, 0}}};
    Scene scene = scene_of({moving});
    scene.composition.time = 1; // half way: 360, that is 180 in the picture
    const Picture picture(scene);
    EXPECT_TRUE(picture.at(180, 250).is_red());
    EXPECT_FALSE(picture.at(80, 250).is_red());
}

TEST(Preview, MarksBacksDistanceAndSelection) {
    Layer back = card_at(pale, {1360, 540, 0});
    back.transform.orientation = {0, 180, 0};
    const Scene scene =
        scene_of({card_at(pale, {560, 540, -800}), card_at(pale, {960, 540, 1500}), back});
    const Picture picture(scene);
    const int near = picture.at(195, 270).sum(), far = picture.at(480, 270).sum();
    EXPECT_GT(near, far + 40) << "haze dims what is far";
    const Picture level(scene_of({card_at(pale, {560, 540, 0}), back}));
    EXPECT_GT(level.at(280, 270).sum(), level.at(680, 270).sum() + 100) << "backs are darker";

    Scene chosen = scene_of({card(red)});
    const Pixel plain = Picture(chosen).at(480, 240);
    chosen.select(Selection{0, chosen.layer_at(0).id, chosen.layer_at(0).id});
    const Pixel lined = Picture(chosen).at(480, 240);
    EXPECT_GT(lined.b, plain.b + 20) << plain << " became " << lined;
}

TEST(Preview, WritesNamesOnLayersThatAreLargeEnough) {
    const Picture without(scene_of({card(blue)})), with(scene_of({card(blue, "Harbour")}));
    EXPECT_GT(with.differences(without, 430, 280, 530, 300), 30) << "along the lower edge";
    EXPECT_EQ(with.differences(without, 0, 0, 960, 238), 0);
    EXPECT_EQ(with.differences(without, 0, 302, 960, 490), 0) << "none beside the card";
    Layer tiny = card(blue, "Harbour"), bare = card(blue);
    tiny.transform.scale = bare.transform.scale = {12, 12, 100};
    EXPECT_EQ(Picture(scene_of({tiny})).differences(Picture(scene_of({bare})), 0, 0, 960, 490), 0);
}

TEST(Preview, DrawsEveryKindOfLayer) {
    const Picture empty(Scene{});
    for (const LayerKind kind : {LayerKind::Footage, LayerKind::Text, LayerKind::Shape,
                                 LayerKind::Light, LayerKind::Camera}) {
        Layer layer = card(pale, "Seal");
        layer.kind = kind;
        layer.transform.position = {960, 300, 0};
        if (!layer.has_source()) layer.transform.anchor_point = {}; // as scenes give it
        const Picture picture(scene_of({camera({960, 540, -eye}, {960, 540, 0}), layer}));
        EXPECT_GT(picture.differences(empty, 430, 120, 530, 180), 60) << name_of(kind);
        EXPECT_EQ(picture.differences(empty, 0, 0, 960, 90), 0) << name_of(kind);
    }
}

TEST(Preview, WritesSvgWithEveryVisibleName) {
    std::vector<Layer> layers;
    for (int i = 0; i < 200; ++i) {
        layers.push_back(card_at(red, {160.0 + 84 * (i % 20), 60.0 + 100 * (i / 20), 0},
                                 "IMG_" + std::to_string(1000 + i) + ".jpg"));
        layers.back().kind = LayerKind::Footage;
        layers.back().size = {80, 60};
    }
    for (const std::size_t count : {std::size_t{1}, layers.size()}) {
        const std::vector<Layer> some(layers.begin(), layers.begin() + std::ptrdiff_t(count));
        const std::string svg = svg_of(scene_of(some));
        EXPECT_TRUE(well_formed(svg)) << count;
        for (const Layer& layer : some) {
            EXPECT_TRUE(contains(svg, "<title>" + layer.name + "</title>")) << layer.name;
        }
        EXPECT_LT(svg.size(), 40000 + count * 20000);
    }
}

TEST(Preview, AcceptsAnyBytesAsNames) {
    const std::string svg = svg_of(scene_of({card(red, "a<b>&\"c\"\x01\n\xff\xef\xbf\xbf")}));
    EXPECT_TRUE(well_formed(svg));
    EXPECT_TRUE(contains(svg, "a&lt;b&gt;&amp;\"c\"  \uFFFD\uFFFD</title>")) << svg.substr(0, 400);
    EXPECT_FALSE(contains(svg, "\xff"));
    // So are very long names.
    EXPECT_TRUE(well_formed(svg_of(scene_of({card(red, std::string(100000, 'W'))}))));
}

TEST(Preview, ShowsOnlyTheTopOfAPile) {
    std::vector<Layer> pile;
    for (int i = 0; i < 300; ++i)
        pile.push_back(card(i ? red : blue, "Sheet " + std::to_string(i)));
    const Scene scene = scene_of(pile);
    EXPECT_TRUE(Picture(scene).at(480, 260).is_blue());
    EXPECT_TRUE(contains(svg_of(scene), "Sheet 0<"));
    EXPECT_FALSE(contains(svg_of(scene), "Sheet 1<"));
}

TEST(Preview, DrawsScenesWithExtremeValues) {
    const auto with = [](const std::function<void(Layer&)>& change) {
        Layer layer = card(red, "Broken");
        change(layer);
        return scene_of({layer, card(blue, "Sound")});
    };
    const std::vector<std::pair<const char*, Scene>> scenes = [&] {
        std::vector<std::pair<const char*, Scene>> s;
        s.emplace_back("far off", with([](Layer& l) {
                           l.transform.position = {1e300, -1e300, 1e300};
                       }));
        s.emplace_back("far", with([](Layer& l) { l.transform.position = {1e12, 1e12, 1e12}; }));
        s.emplace_back("at the eye", with([](Layer& l) {
                           l.transform.position = {960, 540, -eye};
                       }));
        s.emplace_back("no scale", with([](Layer& l) { l.transform.scale = {0, 0, 0}; }));
        s.emplace_back("huge scale", with([](Layer& l) { l.transform.scale = {1e9, 1e9, 1e9}; }));
        s.emplace_back("negative", with([](Layer& l) { l.transform.scale = {-100, 5e-324, 1}; }));
        s.emplace_back("on edge", with([](Layer& l) { l.transform.orientation = {0, 90, 0}; }));
        s.emplace_back("turns", with([](Layer& l) { l.transform.rotation = {1e300, -1e18, 720}; }));
        s.emplace_back("camera at its target",
                       scene_of({camera({960, 540, 0}, {960, 540, 0}), card(blue, "Sound")}));
        s.emplace_back("camera far off",
                       scene_of({camera({1e308, -1e308, 0}, {0, 0, 1e308}), card(red)}));
        s.emplace_back("camera above",
                       scene_of({camera({960, -5000, 0}, {960, 540, 0}), card(red)}));
        s.emplace_back("text unsized", with([](Layer& l) {
                           l.kind = LayerKind::Text;
                           l.size = {};
                           l.name = " ";
                       }));
        return s;
    }();
    for (const auto& [what, scene] : scenes) {
        EXPECT_EQ(Picture(scene).width(), 960) << what;
        const std::string svg = svg_of(scene);
        EXPECT_TRUE(well_formed(svg)) << what;
        EXPECT_FALSE(contains(svg, "nan") || contains(svg, "inf")) << what;
    }
}

TEST(Preview, HasTheCompositionsShape) {
    const struct {
        int width, height;
        double scale;
        int across, down;
    } cases[] = {{1920, 1080, 2, 1920, 1080}, {1080, 1920, 1, 540, 960}, {100, 100, 0.5, 480, 480},
                 {30000, 1, 1, 960, 1},       {1, 30000, 1, 1, 960},     {4, 3, 1, 960, 720}};
    for (const auto& c : cases) {
        Scene scene = scene_of({card(red)});
        scene.composition.width = c.width;
        scene.composition.height = c.height;
        const Picture picture(scene, c.scale);
        EXPECT_EQ(picture.width(), c.across) << c.width << " x " << c.height;
        EXPECT_EQ(picture.height(), c.down) << c.width << " x " << c.height;
    }
}

class PreviewFile : public testing::Test {
  protected:
    std::filesystem::path in(const std::string& name) const { return _folder.path / name; }
    std::size_t files() const { return _folder.entries(); }
    // The error of writing a file; empty if it was written.
    std::string error_of(const std::filesystem::path& path, double scale = 1) const {
        try {
            write_preview(scene_of({card(red, "Card")}), path.string(), scale);
        } catch (const std::runtime_error& error) {
            return error.what();
        }
        return "";
    }

  private:
    TemporaryFolder _folder;
};

TEST_F(PreviewFile, HasTheFormatOfItsExtensionAndIsTheSameEachTime) {
    for (const auto& [name, start] : {std::pair{"a.png", "\x89PNG"},
                                      {"b.PNG", "\x89PNG"},
                                      {"c.svg", "<?xml"},
                                      {"d.e.Svg", "<?xml"}}) {
        EXPECT_EQ(error_of(in(name)), "");
        const std::string first = read_file(in(name));
        EXPECT_TRUE(first.starts_with(start)) << name;
        EXPECT_EQ(error_of(in(name)), "");
        EXPECT_TRUE(read_file(in(name)) == first) << name;
    }
    EXPECT_EQ(files(), 4u);
}

TEST_F(PreviewFile, ReportsErrorsAndLeavesNothing) {
    for (const char* name : {"a.jpg", "a", "a.png.txt", ".png"}) {
        const std::string message = error_of(in(name));
        EXPECT_TRUE(contains(message, in(name).string()) && contains(message, ".svg")) << message;
    }
    for (const double scale : {0.0, -1.0, 17.0, 1e300, std::nan("")}) {
        EXPECT_TRUE(contains(error_of(in("a.png"), scale), "scale")) << scale;
    }
    const std::string message = error_of(in("no such folder/a.png"));
    EXPECT_TRUE(contains(message, "no such folder/a.png") && contains(message, "No such file"))
        << message;
    EXPECT_EQ(files(), 0u);
    std::filesystem::create_directory(in("folder.png"));
    EXPECT_NE(error_of(in("folder.png")), "");
    EXPECT_EQ(files(), 1u) << "only the folder";
}

} // namespace
} // namespace minihost
