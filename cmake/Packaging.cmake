# The Debian package: `make package` (or cpack in the build folder) writes
# gridpages_VERSION_ARCH.deb from the install rules, to be installed with
# `apt install ./gridpages_VERSION_ARCH.deb`.

set(GRIDPAGES_MAINTAINER "gridpages maintainers <gridpages@example.org>"
  CACHE STRING "Maintainer field of the Debian package: name <address>")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME gridpages)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "${GRIDPAGES_MAINTAINER}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY
  "page maker for the mathematics classroom")
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "${GRIDPAGES_MAINTAINER}")
set(CPACK_DEBIAN_PACKAGE_SECTION education)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
# CPack puts the summary above this as the synopsis line.
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"gridpages prints graph papers (triangles, squares, centred squares,
hexagons, a parabola on inch axes, a multiplication chart, puzzle
outlines), fold-up templates of polyhedra at true size, string art
and Explode It, a shape enlarged, slid or multiplied by a matrix.
.
Where no printer is installed, each sheet is saved as a PDF file in the
Documents folder. A batch mode replays scripts of clicks and typing.")

# The libraries come from the binary itself (dpkg-shlibdeps), so the Qt
# versions are those it was linked against. What it loads at run time
# without linking is named here: the Qt platform plugins that open a window
# (only recommended by libqt6gui6, so a system that skips recommends would
# have no window), libcups2, which a print job loads, and metric twins of
# Arial and Times New Roman, whose widths place the text on the sheets.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "qt6-qpa-plugins, libcups2, fonts-liberation2")

include(CPack)
