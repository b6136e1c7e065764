# Cross build for the head unit: 32-bit ARM with hard float (Debian's armhf),
# where plain char is unsigned. Debian's cross compiler
# (crossbuild-essential-armhf) brings the C and C++ libraries; Qt comes from
# a sysroot of Debian's armhf packages (tools/armhf-sysroot.sh), named by
# CARCONTROL_ARMHF_SYSROOT. Programs and tests run under qemu-arm, which
# finds the target's loader, libraries and fonts in the same sysroot.
#
#   cmake -S . -B build-armhf -DCMAKE_TOOLCHAIN_FILE=cmake/armhf-toolchain.cmake \
#         -DCARCONTROL_ARMHF_SYSROOT=$PWD/build-armhf/sysroot
#
# Qt's code generators (moc, rcc) are the build machine's own.

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR arm)
set(CMAKE_LIBRARY_ARCHITECTURE arm-linux-gnueabihf)
set(CMAKE_C_COMPILER arm-linux-gnueabihf-gcc)
set(CMAKE_CXX_COMPILER arm-linux-gnueabihf-g++)

# The compiler checks read this file again in a project of their own.
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES CARCONTROL_ARMHF_SYSROOT)

if(NOT CARCONTROL_ARMHF_SYSROOT)
    message(FATAL_ERROR "Name the armhf sysroot: -DCARCONTROL_ARMHF_SYSROOT=DIR (tools/armhf-sysroot.sh DIR makes it).")
endif()
get_filename_component(CARCONTROL_ARMHF_SYSROOT "${CARCONTROL_ARMHF_SYSROOT}" ABSOLUTE)
if(NOT EXISTS "${CARCONTROL_ARMHF_SYSROOT}/usr/lib/arm-linux-gnueabihf/cmake/Qt5/Qt5Config.cmake")
    message(FATAL_ERROR "${CARCONTROL_ARMHF_SYSROOT} holds no armhf Qt; tools/armhf-sysroot.sh makes it.")
endif()

# Packages and libraries from the sysroot alone; programs from this machine.
set(CMAKE_FIND_ROOT_PATH "${CARCONTROL_ARMHF_SYSROOT}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Qt's libraries need others of the sysroot; the linker finds them there.
set(_carcontrol_rpath_link
    "-Wl,-rpath-link,${CARCONTROL_ARMHF_SYSROOT}/usr/lib/arm-linux-gnueabihf:${CARCONTROL_ARMHF_SYSROOT}/lib/arm-linux-gnueabihf")
set(CMAKE_EXE_LINKER_FLAGS_INIT "${_carcontrol_rpath_link}")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "${_carcontrol_rpath_link}")
set(CMAKE_MODULE_LINKER_FLAGS_INIT "${_carcontrol_rpath_link}")

set(CMAKE_CROSSCOMPILING_EMULATOR qemu-arm -L "${CARCONTROL_ARMHF_SYSROOT}")

# Where the build machine's moc and rcc lie (see the top CMakeLists.txt).
set(CARCONTROL_HOST_QT_TOOLS_DIR /usr/lib/qt5/bin)
