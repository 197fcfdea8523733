# What is installed where, and the two packages that hold it: cmake --install, cpack.

install(TARGETS minihost RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS cocoa Tamborel LIBRARY DESTINATION ${TAMBOREL_MODULE_DIR})
install(FILES cylinder/Tamborel.controls.json DESTINATION ${TAMBOREL_MODULE_DIR})
install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DATADIR}/tamborel)
# In the places that their links name.
set(documents ${CMAKE_INSTALL_DATADIR}/doc/tamborel)
install(FILES README.md DESTINATION ${documents})
install(DIRECTORY docs DESTINATION ${documents} FILES_MATCHING PATTERN "*.md" PATTERN "*.png")

set(CPACK_PACKAGE_NAME tamborel)
set(CPACK_PACKAGE_VENDOR "The Tamborel developers")
set(CPACK_PACKAGE_CONTACT "The Tamborel developers <tamborel@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "plug-in that arranges 3D layers on a cylinder, with a small host")
set(CPACK_GENERATOR DEB TGZ)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION graphics)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "Tamborel arranges the selected 3D layers of a composition on an imaginary cylinder.
This package holds the plug-in and minihost, a small host to use it in, on the
command line and in a window, with example scenes.")
# The libraries by what the files need; the font by hand, since it is only named at run time.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_DEPENDS fonts-inter)
include(CPack)
