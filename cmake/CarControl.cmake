# Build rules shared by the project's directories.

# The directories whose headers the plug-in's code includes by name.
set(CARCONTROL_PLUGIN_INCLUDE_DIRS
    "${PROJECT_SOURCE_DIR}/records"
    "${PROJECT_SOURCE_DIR}/host"
    "${PROJECT_SOURCE_DIR}/plugin"
    "${PROJECT_SOURCE_DIR}/dialogView"
    "${PROJECT_SOURCE_DIR}/exView"
    "${PROJECT_SOURCE_DIR}/exView/common"
    "${PROJECT_SOURCE_DIR}/pages")

# The plug-in's own code builds with the head unit's older compiler and
# Qt 5.3: C++11, no extensions.
function(carcontrol_plugin_code target)
    set_target_properties(${target} PROPERTIES
        CXX_STANDARD 11
        CXX_STANDARD_REQUIRED ON
        CXX_EXTENSIONS OFF)
    # The head unit's older compiler: standard C++11 and nothing of GNU's.
    target_compile_options(${target} PRIVATE -pedantic-errors)
    target_include_directories(${target} PUBLIC ${CARCONTROL_PLUGIN_INCLUDE_DIRS})
    if(CARCONTROL_SANITIZE)
        target_compile_options(${target} PRIVATE -fsanitize=vptr)
    endif()
endfunction()

# A module that the head unit's GUI process loads from its plug-in directory
# (lib<target>.so). It carries all of its own code. What it uses of the
# unit's closed libraries (the classes of host/) stays undefined and is bound
# when the process loads it, from the libraries that the process already
# has: on the unit its own, on the desktop the host that the simulator, the
# tests and the tools link. It names no library of ours and no run path.
# Binding everything at load (-z now) makes a missing host symbol fail the
# load, with the loader's reason, instead of ending the process at the
# first call. tools/plugincheck.py holds the module to this.
function(carcontrol_head_unit_module target)
    carcontrol_plugin_code(${target})
    # No run path even in the build tree, where CMake would name the
    # directory of a Qt outside the system's (a cross build's sysroot).
    set_target_properties(${target} PROPERTIES
        PREFIX "lib"
        LIBRARY_OUTPUT_DIRECTORY "${CARCONTROL_PLUGIN_DIR}"
        SKIP_BUILD_RPATH ON)
    target_link_options(${target} PRIVATE "LINKER:-z,now")
endfunction()

# Every test runs headless, with the artwork that the build draws, and keeps
# the head unit's saved settings in a folder of its own, so that tests run
# side by side don't see each other's.
function(carcontrol_add_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES;ARGS" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE Qt5::Test ${ARG_LIBRARIES})
    add_test(NAME ${name} COMMAND ${name} ${ARG_ARGS})
    set_tests_properties(${name} PROPERTIES ENVIRONMENT
        "QT_QPA_PLATFORM=offscreen;CARCONTROL_RESOURCE_ROOT=${CARCONTROL_RESOURCE_ROOT};CARCONTROL_PLUGIN_DIR=${CARCONTROL_PLUGIN_DIR};CARCONTROL_STORAGE_DIR=${CMAKE_BINARY_DIR}/storage/${name}")
    add_dependencies(${name} artwork)
endfunction()
