# The preview of a composition, drawn with cairo and pango themselves.
find_package(PkgConfig REQUIRED)
pkg_check_modules(PREVIEW_DRAWING REQUIRED IMPORTED_TARGET GLOBAL cairo pangocairo)

target_sources(minihost_core PRIVATE
    view/preview.cpp
    view/preview_canvas.cpp
    view/preview_cover.cpp
    view/preview_motif.cpp
    view/preview_paint.cpp
    view/preview_palette.cpp
    view/preview_plan.cpp
    view/preview_space.cpp
    view/preview_stage.cpp
    view/preview_svg.cpp
    view/preview_text.cpp)
target_link_libraries(minihost_core PRIVATE PkgConfig::PREVIEW_DRAWING)
