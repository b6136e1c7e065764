# The head unit's build with the unit's own kit (CARCONTROL_UNIT_ONLY=ON):
# the kit's cross compiler, named by its toolchain file, and Qt 5.3 or later
# (Core, Gui and Widgets) from its sysroot, given as CMAKE_SYSROOT or as the
# toolchain's CMAKE_FIND_ROOT_PATH. Anything missing stops the configure
# with one line that names it.
if(NOT CMAKE_CROSSCOMPILING)
    message(FATAL_ERROR "unit build: no toolchain: give the kit's toolchain file with -DCMAKE_TOOLCHAIN_FILE=FILE")
endif()
set(CARCONTROL_UNIT_SYSROOT "${CMAKE_SYSROOT}")
if(NOT CARCONTROL_UNIT_SYSROOT AND CMAKE_FIND_ROOT_PATH)
    list(GET CMAKE_FIND_ROOT_PATH 0 CARCONTROL_UNIT_SYSROOT)
endif()
if(NOT CARCONTROL_UNIT_SYSROOT)
    message(FATAL_ERROR "unit build: no sysroot: give the kit's with -DCMAKE_SYSROOT=DIR")
endif()
find_package(Qt5 5.3 QUIET COMPONENTS Core Gui Widgets)
if(NOT Qt5_FOUND)
    message(FATAL_ERROR "unit build: no Qt 5.3 or later (Core, Gui, Widgets) in the sysroot ${CARCONTROL_UNIT_SYSROOT}")
endif()
message(STATUS "unit build: Qt ${Qt5Core_VERSION} from ${CARCONTROL_UNIT_SYSROOT}")
