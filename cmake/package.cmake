# SPDX-License-Identifier: GPL-3.0-or-later
# The Debian package: `cpack -G DEB` in the build folder.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME idrova)
set(CPACK_PACKAGE_CONTACT "Idrova developers <developers@idrova.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "check fluid distribution piping")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Idrova computes networks of pipes that carry one fluid, a liquid or a gas:
the flow rate in every pipe, the pressure at every point, and the velocity,
Reynolds number and pressure drop of each pipe. Pumps with their curves and
concentrated losses can be placed in the pipes.
.
The plant is drawn on a grid or typed into a table; idrova-calc does the same
computation in scripts.")
# The package's owner is root and its folders are open whoever builds it.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

include(CPack)
