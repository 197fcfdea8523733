// The placement pass over any options and records: no fault with anything, and with options that
// the dialog can give, layers that stand inside the cylinder.

#include "cylinder/orientation.h"
#include "cylinder/placement.h"
#include "cylinder/scaling.h"
#include "fuzz/Bytes.h"
#include "math/random.h"

#include <algorithm>

namespace {

constexpr double smallest_size = 9.999999974752427e-07;

// Any doubles at all, or what number fields of the dialog can hold.
class OptionReader {
  public:
    explicit OptionReader(fuzz::Bytes& bytes) : _bytes(bytes), _dialog(bytes.flag()) {}
    bool from_dialog() const { return _dialog; }

    CylinderOptions read() {
        CylinderOptions options;
        for (double* size : {&options.size.x, &options.size.y, &options.size.z})
            *size = _dialog ? std::max(smallest_size, limited(0, 10000)) : _bytes.number();
        options.distribute_randomly = _bytes.flag();
        for (auto* range : {&options.angle, &options.distance, &options.height}) {
            range->min = limited(-10000, 10000);
            range->max = limited(-10000, 10000);
            range->increment = limited(-10000, 10000);
        }
        options.orientation = static_cast<Orientation>(_bytes.integer(0, 9));
        options.scale_to_fit = _bytes.flag();
        options.scale_to_size = _bytes.flag();
        options.target_size =
            _dialog ? static_cast<float>(limited(0, 10000)) : _bytes.take<float>();
        return options;
    }

  private:
    double limited(double least, double greatest) {
        const double value = _bytes.number();
        if (!_dialog) return value;
        return std::isnan(value) ? least : static_cast<float>(std::clamp(value, least, greatest));
    }
    fuzz::Bytes& _bytes;
    bool _dialog;
};

std::list<LayerInfo> read_records(fuzz::Bytes& bytes, bool sane) {
    std::list<LayerInfo> layers(bytes.integer(0, 40));
    for (LayerInfo& layer : layers) {
        if (bytes.empty()) break;
        const auto value = [&] { return sane ? bytes.finite() : bytes.number(); };
        layer.width = layer.scaled_width = bytes.take<A_long>();
        layer.height = layer.scaled_height = bytes.take<A_long>();
        if (sane) {
            layer.scaled_width = std::abs(layer.scaled_width % 30000);
            layer.scaled_height = std::abs(layer.scaled_height % 30000);
        }
        layer.scale.val.three_d = {value(), value(), value()};
        layer.orient.val.three_d = {value(), value(), value()};
    }
    return layers;
}

bool inside(const AEGP_ThreeDVal& pos, const CylinderOptions& options) {
    const double x = 2 * pos.x / options.size.x, z = 2 * pos.z / options.size.z;
    return std::fabs(pos.y) <= options.size.y / 2 * (1 + 1e-9) && x * x + z * z <= 1 + 1e-6;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Bytes bytes(data, size);
    OptionReader reader(bytes);
    const CylinderOptions options = reader.read();
    math::SetRand(bytes.take<std::int64_t>());
    std::list<LayerInfo> layers = read_records(bytes, reader.from_dialog());
    const std::size_t count = layers.size();
    AEGP_StreamValue camera{};
    camera.val.three_d = {bytes.number(), bytes.number(), bytes.number()};

    if (options.distribute_randomly)
        pos_randomly(layers, options);
    else
        pos_use_dist(layers, options);
    // The first layer of a spiral stands where the distance says, beyond the axis too.
    const auto bound = [&](const LayerInfo& layer) {
        return options.distribute_randomly || &layer != &layers.front();
    };
    if (reader.from_dialog())
        for (const LayerInfo& layer : layers)
            fuzz::require(!bound(layer) || inside(layer.pos.val.three_d, options),
                          "a layer stands in the cylinder");

    orient_layers(layers, options, camera);
    std::list<LayerInfo> before = layers;
    if (options.scale_to_fit) scale_layers_to_fit(layers, options);
    fuzz::require(layers.size() == count, "no record comes or goes");
    if (reader.from_dialog())
        for (auto a = before.begin(), b = layers.begin(); b != layers.end(); ++a, ++b) {
            fuzz::require(b->scaled_width <= std::max(a->scaled_width, 1) &&
                              b->scaled_height <= std::max(a->scaled_height, 1),
                          "fitting makes nothing larger");
        }
    if (options.scale_to_size) scale_layers_conform(layers, options);
    return 0;
}
