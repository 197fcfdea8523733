// From scene to file.

#include "minihost/view/preview.h"

#include "minihost/view/preview_paint.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <system_error>

namespace minihost {

namespace {

PreviewFormat format_of(const std::string& path) {
    std::string extension = std::filesystem::path(path).extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    if (extension == ".png") return PreviewFormat::png;
    if (extension == ".svg") return PreviewFormat::svg;
    throw std::runtime_error(
        path + ": a preview is written as .png or .svg, " +
        (extension.empty() ? "and this name has no extension" : "not as " + extension));
}

// Into a file beside it first, which then takes its name.
void write_whole(const std::string& path, const std::string& bytes) {
    const std::string part = path + ".part";
    std::ofstream file(part, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    std::error_code error;
    if (file) std::filesystem::rename(part, path, error);
    if (file && !error) return;
    const std::string reason = error ? error.message() : std::generic_category().message(errno);
    std::filesystem::remove(part, error);
    throw std::runtime_error(path + ": " + reason);
}

} // namespace

std::string encode_preview(const Scene& scene, PreviewFormat format, double scale) {
    if (!(scale >= least_preview_scale && scale <= greatest_preview_scale)) {
        throw std::runtime_error("the scale of a picture is a number from 0.1 to 16");
    }
    const preview::Plan plan = preview::make_plan(scene, scale);
    const std::unique_ptr<preview::Canvas> canvas =
        format == PreviewFormat::png ? preview::png_canvas(plan.width, plan.height)
                                     : preview::svg_canvas(plan.width, plan.height, plan.caption);
    preview::paint(*canvas, plan);
    return canvas->encode();
}

void render_preview(const Scene& scene, const std::string& path, double scale) {
    const PreviewFormat format = format_of(path);
    const std::string file = encode_preview(scene, format, scale);
    write_whole(path, file);
}

} // namespace minihost
