# The configure of a build for a head unit (CARCONTROL_UNIT_ONLY) refuses
# what it can't build with, in one line that names what is missing: no
# toolchain file, a toolchain without a sysroot, a sysroot without Qt.
# Called with -DSOURCE_DIR=... -DWORK_DIR=...

file(REMOVE_RECURSE "${WORK_DIR}")
file(MAKE_DIRECTORY "${WORK_DIR}/empty-sysroot")
# A kit of this machine's compiler: a cross toolchain by CMake's reckoning.
file(WRITE "${WORK_DIR}/kit.cmake" "set(CMAKE_SYSTEM_NAME Linux)\nset(CMAKE_CXX_COMPILER c++)\n")
file(WRITE "${WORK_DIR}/kit-with-sysroot.cmake" "include(\"${WORK_DIR}/kit.cmake\")
set(CMAKE_FIND_ROOT_PATH \"${WORK_DIR}/empty-sysroot\")
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)\n")

set(cases
    "no-toolchain|unit build: no toolchain: give the kit's toolchain file with -DCMAKE_TOOLCHAIN_FILE=FILE"
    "kit.cmake|unit build: no sysroot: give the kit's with -DCMAKE_SYSROOT=DIR"
    "kit-with-sysroot.cmake|unit build: no Qt 5.3 or later (Core, Gui, Widgets) in the sysroot ${WORK_DIR}/empty-sysroot")
set(failures 0)
foreach(case IN LISTS cases)
    string(REPLACE "|" ";" case "${case}")
    list(GET case 0 toolchain)
    list(GET case 1 expected)
    set(options -DCARCONTROL_UNIT_ONLY=ON)
    if(NOT toolchain STREQUAL "no-toolchain")
        list(APPEND options "-DCMAKE_TOOLCHAIN_FILE=${WORK_DIR}/${toolchain}")
    endif()
    execute_process(COMMAND "${CMAKE_COMMAND}" -S "${SOURCE_DIR}" -B "${WORK_DIR}/${toolchain}.build" ${options}
        RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err)
    # CMake wraps a long message; the line is the text with its breaks undone.
    string(REGEX REPLACE "\n  +" " " said "${err}")
    string(FIND "${said}" "${expected}" at)
    if(status EQUAL 0 OR at EQUAL -1)
        message("${toolchain}: expected a failed configure saying\n  ${expected}\ngot status ${status}:\n${err}")
        math(EXPR failures "${failures} + 1")
    else()
        message("${toolchain}: refused: ${expected}")
    endif()
endforeach()
if(failures GREATER 0)
    message(FATAL_ERROR "${failures} of the unit configure's refusals failed")
endif()
