# The Debian package of the build, made by CPack's DEB generator (make
# package, make package-armhf) into <build>/packages:
#  carcontrol-headunit  (headunit layout, the armhf build): the plug-in, its
#                       artwork and translations in the head unit's tree;
#  carcontrol-bench     (bench layout, the desktop build): the simulator as
#                       /usr/bin/headunit-sim with everything it runs.
# The version is the project's; dependencies come from dpkg-shlibdeps.

find_program(CARCONTROL_DPKG dpkg)
if(CARCONTROL_DPKG)
    execute_process(COMMAND "${CARCONTROL_DPKG}" --print-architecture
        OUTPUT_VARIABLE _carcontrol_build_arch OUTPUT_STRIP_TRAILING_WHITESPACE)
endif()

if(CARCONTROL_INSTALL_LAYOUT STREQUAL "headunit")
    set(CARCONTROL_PACKAGE carcontrol-headunit)
    set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "car control plug-in for aftermarket head units
The vehicle's face on the head unit's screen: climate, door and body
overlays, the reversing view seam, and the pages of information and
settings of the car, whose taps become command frames to the decoder box
on the car's CAN bus.

This package holds the plug-in that the head unit's GUI process loads
(interface cantheme/0.1), its pictures and its translations, at the paths
the head unit reads. The plug-in was built with Qt ${Qt5Core_VERSION}: Qt loads it
only into a process with Qt ${Qt5Core_VERSION_MAJOR}.${Qt5Core_VERSION_MINOR} or later, and a unit with an older
Qt needs it built with the unit's own kit. It uses the unit's own
libraries, which the unit's GUI process has loaded.")
    # The unit's Qt and its closed libraries come with the unit, not from
    # Debian's packages: the package names none of them.
    set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS OFF)
else()
    set(CARCONTROL_PACKAGE carcontrol-bench)
    set(CPACK_DEBIAN_PACKAGE_DESCRIPTION "head unit simulator for the car control plug-in
A head unit on the desktop: headunit-sim loads the car control plug-in as
the head unit does, plays the car and its decoder box, shows the screen
with a control panel, and runs scenarios headless for tests.

This package holds the simulator with the plug-in, the sample reverse
plug-in, the desktop stand-in of the head unit's libraries, the artwork
and the catalogue of the decoder box's frames.")
    set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
    # --language zh_CN draws its texts with a CJK font; without one, boxes.
    set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "fonts-wqy-microhei | fonts-noto-cjk")
    # The desktop host is the package's own: no other package provides it.
    set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_BINARY_DIR}/lib")
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME "${CARCONTROL_PACKAGE}")
set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
set(CPACK_PACKAGE_CONTACT "Car control maintainers <carcontrol@example.com>")
set(CPACK_PACKAGE_DIRECTORY "${CMAKE_BINARY_DIR}/packages")
set(CPACK_PACKAGING_INSTALL_PREFIX "/usr")
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
if(CMAKE_CROSSCOMPILING AND CMAKE_SYSTEM_PROCESSOR MATCHES "^arm")
    set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE armhf)
elseif(_carcontrol_build_arch)
    set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE "${_carcontrol_build_arch}")
endif()

# Debian's policy asks every package for its copyright and changelog.
set(_carcontrol_docdir "${CMAKE_BINARY_DIR}/packaging")
configure_file("${CMAKE_SOURCE_DIR}/packaging/changelog.in" "${_carcontrol_docdir}/changelog" @ONLY)
execute_process(COMMAND gzip -9nf "${_carcontrol_docdir}/changelog")
if(CARCONTROL_INSTALL_LAYOUT STREQUAL "headunit")
    set(_carcontrol_docdest "/usr/share/doc/${CARCONTROL_PACKAGE}")
else()
    set(_carcontrol_docdest "share/doc/${CARCONTROL_PACKAGE}")
endif()
install(FILES "${CMAKE_SOURCE_DIR}/packaging/copyright" DESTINATION "${_carcontrol_docdest}" COMPONENT doc)
# A native package (its version has no Debian revision) calls it changelog.gz.
install(FILES "${_carcontrol_docdir}/changelog.gz" DESTINATION "${_carcontrol_docdest}" COMPONENT doc)

# The head unit's package lies outside Debian's file system layout on purpose;
# its overrides say why.
if(CARCONTROL_INSTALL_LAYOUT STREQUAL "headunit")
    install(FILES "${CMAKE_SOURCE_DIR}/packaging/carcontrol-headunit.lintian-overrides"
        DESTINATION /usr/share/lintian/overrides RENAME carcontrol-headunit COMPONENT doc)
endif()

include(CPack)
