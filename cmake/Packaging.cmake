# SPDX-License-Identifier: GPL-3.0-or-later
# What `cmake --install` puts beside the app and the backend so that a desktop
# finds, describes and starts them, and the Debian package CPack makes of it.
include(GNUInstallDirs)

set(data ${PROJECT_SOURCE_DIR}/data)
install(FILES ${data}/org.tarnelo.Tarnelo.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${data}/org.tarnelo.Tarnelo.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES ${data}/org.tarnelo.Tarnelo.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)

# The backend runs for each user from login on: the unit is enabled for
# everyone by the link in default.target.wants, as an enabled vendor unit is.
set(TARNELO_BACKEND_PROGRAM ${CMAKE_INSTALL_FULL_LIBEXECDIR}/tarnelo/tarnelo-backend)
set(user_units lib/systemd/user)
configure_file(${data}/tarnelo-backend.service.in ${PROJECT_BINARY_DIR}/tarnelo-backend.service @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/tarnelo-backend.service DESTINATION ${user_units})
install(CODE "
    set(wants \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${user_units}/default.target.wants\")
    file(MAKE_DIRECTORY \"\${wants}\")
    file(CREATE_LINK ../tarnelo-backend.service \"\${wants}/tarnelo-backend.service\" SYMBOLIC)
")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tarnelo)
set(CPACK_PACKAGE_VENDOR "The Tarnelo developers")
set(CPACK_PACKAGE_CONTACT "The Tarnelo developers <tarnelo@example.org>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "See how clean the air is where you are")
set(CPACK_PACKAGE_DESCRIPTION "Tarnelo shows the air-quality index where you are, the pollutants, the pollen
and the weather, the past week, an offline map on which any place can be
looked up, and air alerts. A backend runs for each user on loopback.")
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
# The build keeps its debugging information; the package does without.
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE https://tarnelo.example.org/)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What the screens import and the plugins Qt loads at run time: nothing links
# them, so dpkg-shlibdeps cannot see them.
set(qt_runtime
    qml-module-qtquick2 qml-module-qtquick-window2 qml-module-qtquick-layouts
    qml-module-qtquick-controls2 qml-module-qtquick-templates2 qml-module-qtlocation
    qml-module-qtpositioning qml-module-qtcharts
    libqt5positioning5-plugins libqt5location5-plugins libqt5svg5)
list(JOIN qt_runtime ", " CPACK_DEBIAN_PACKAGE_DEPENDS)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-inter, geoclue-2.0")
include(CPack)
