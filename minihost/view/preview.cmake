# The preview of a composition.
target_sources(minihost_core PRIVATE
    view/preview_cover.cpp
    view/preview_space.cpp)
