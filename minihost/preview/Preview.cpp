#include "minihost/preview/Preview.h"

#include "minihost/model/OutputFile.h"
#include "minihost/preview/Painter.h"

#include <memory>
#include <stdexcept>

namespace minihost {

namespace {

PreviewFormat format_of(const std::string& path) {
    const std::string extension = extension_of(path);
    if (extension == ".png") return PreviewFormat::Png;
    if (extension == ".svg") return PreviewFormat::Svg;
    throw std::runtime_error(
        path + ": a preview is written as .png or .svg, " +
        (extension.empty() ? "and this name has no extension" : "not as " + extension));
}

} // namespace

std::string encode_preview(const Scene& scene, PreviewFormat format, double scale) {
    if (!(scale >= least_preview_scale && scale <= greatest_preview_scale))
        throw std::runtime_error("the scale of a picture is a number from 0.1 to 16");
    const preview::DrawList list = preview::make_draw_list(scene, scale);
    const std::unique_ptr<preview::Canvas> canvas =
        format == PreviewFormat::Png
            ? preview::make_png_canvas(list.width, list.height)
            : preview::make_svg_canvas(list.width, list.height, list.caption);
    preview::paint(*canvas, list);
    return canvas->encode();
}

void write_preview(const Scene& scene, const std::string& path, double scale) {
    const PreviewFormat format = format_of(path);
    write_file(path, encode_preview(scene, format, scale));
}

} // namespace minihost
