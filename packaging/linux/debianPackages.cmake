# How CPack makes the two Debian packages of what is installed: `cpack` in the build folder, once all is built.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME lunaria)
set(CPACK_PACKAGE_VENDOR "Lunaria software")
set(CPACK_PACKAGE_CONTACT "Lunaria software <saver@lunaria.example>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/packages)
set(CPACK_POST_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/correctPackages.cmake)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL lunaria lunaria-configure)
set(CPACK_DEB_COMPONENT_INSTALL ON)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://www.lunaria.example/)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SECTION x11)
# The libraries are read from the programs; the fonts are what the texts of the sky are drawn with.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)

set(CPACK_DEBIAN_LUNARIA_PACKAGE_NAME lunaria)
set(CPACK_DEBIAN_LUNARIA_PACKAGE_DEPENDS fonts-liberation)
set(CPACK_DEBIAN_LUNARIA_PACKAGE_RECOMMENDS lunaria-configure)
set(CPACK_DEBIAN_LUNARIA_PACKAGE_SUGGESTS "xscreensaver | mate-screensaver | swayidle")
set(CPACK_DEBIAN_LUNARIA_DESCRIPTION "night sky as a screen saver
Stars drift over a night sky of your choice, fly together and spell your
messages; the moon stands in its present phase; quotations come and go.

It runs under XScreenSaver and MATE, on Wayland with swayidle, or at once
from the menu. The program lunaria-render makes pictures and videos of the
same sky.")

# Its settings, icon and saver are of one version.
set(CPACK_DEBIAN_LUNARIA-CONFIGURE_PACKAGE_NAME lunaria-configure)
set(CPACK_DEBIAN_LUNARIA-CONFIGURE_PACKAGE_DEPENDS "lunaria (= ${PROJECT_VERSION})")
# Where there is no X server, the toolkit needs it.
set(CPACK_DEBIAN_LUNARIA-CONFIGURE_PACKAGE_RECOMMENDS qt6-wayland)
set(CPACK_DEBIAN_LUNARIA-CONFIGURE_DESCRIPTION "settings of the screen saver Lunaria
Chooses what the night sky shows and plays: the moon, the messages, the
background, the sounds, the quotations, and what keeps the computer awake.")

include(CPack)
