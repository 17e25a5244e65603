# The Debian package (scripts/package.sh: cpack -G DEB). Library dependencies
# come from dpkg-shlibdeps over the installed programs; what they load without
# linking (icon theme folders, fonts of the reports) is named here.
set(CPACK_PACKAGE_NAME zolt)
set(CPACK_PACKAGE_VENDOR Thessor)
set(CPACK_PACKAGE_CONTACT "ZOLT maintainers <zolt@thessor.com>")
set(CPACK_PACKAGE_HOMEPAGE_URL https://www.thessor.com/zolt)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "test program authoring for cable and wire-harness analyzers")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_STRIP_FILES ON)
# What a plain `cpack` makes: an unpack-and-run folder on Windows, a disk image on macOS.
if(WIN32)
    set(CPACK_GENERATOR ZIP)
elseif(APPLE)
    set(CPACK_GENERATOR DragNDrop)
else()
    set(CPACK_GENERATOR DEB)
endif()

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION electronics)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "hicolor-icon-theme")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-liberation2, qt6-wayland")
# The summary above is the first line; CPack indents these lines and marks the blank one.
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "ZOLT writes the test programs of a 2048-point cable and wire-harness analyzer:
linked tables per netlist (connectors, pins, wires, splices, components,
switches, groups, fixture), a test sequence in the analyzer's command
language, the binary program file (.zlf, .zlt, .grv), a compile to the
analyzer's image and its serial download, PID and legacy archive imports,
harness families and printed reports.

The package holds the desktop application zolt, the headless zolt-cli and
zolt-analyzer, which plays the analyzer's side of a download.")

include(CPack)
