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
    target_include_directories(${target} PUBLIC ${CARCONTROL_PLUGIN_INCLUDE_DIRS})
    if(CARCONTROL_SANITIZE)
        target_compile_options(${target} PRIVATE -fsanitize=vptr)
    endif()
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

# The head unit is a 32-bit target, where the records' byte layout is exact
# and checked by static_assert. Every source of the given targets is compiled
# once more for 32 bits, without code generation, as part of the build.
function(carcontrol_check_32bit)
    execute_process(
        COMMAND ${CMAKE_COMMAND} -E echo "int main() { return sizeof(void *) == 4 ? 0 : 1; }"
        OUTPUT_FILE "${CMAKE_BINARY_DIR}/check32.cpp")
    try_compile(CAN_BUILD_32BIT "${CMAKE_BINARY_DIR}/check32"
        "${CMAKE_BINARY_DIR}/check32.cpp"
        COMPILE_DEFINITIONS -m32
        LINK_OPTIONS -m32)
    if(NOT CAN_BUILD_32BIT)
        message(FATAL_ERROR "The compiler can't build for 32 bits; tools/setup.sh installs g++-multilib.")
    endif()

    set(flags -m32 -std=c++11 -fPIC -fsyntax-only -Wall -Wextra -Werror
        -DQT_CORE_LIB -DQT_GUI_LIB -DQT_WIDGETS_LIB)
    foreach(dir IN LISTS CARCONTROL_PLUGIN_INCLUDE_DIRS Qt5Widgets_INCLUDE_DIRS)
        list(APPEND flags "-I${dir}")
    endforeach()

    set(stamps)
    foreach(target IN LISTS ARGN)
        get_target_property(sources ${target} SOURCES)
        get_target_property(source_dir ${target} SOURCE_DIR)
        foreach(source IN LISTS sources)
            if(NOT source MATCHES "\\.cpp$" OR source MATCHES "mocs_compilation")
                continue()
            endif()
            get_filename_component(source "${source}" ABSOLUTE BASE_DIR "${source_dir}")
            file(RELATIVE_PATH name "${PROJECT_SOURCE_DIR}" "${source}")
            set(stamp "${CMAKE_BINARY_DIR}/check32/${name}.ok")
            get_filename_component(stamp_dir "${stamp}" DIRECTORY)
            add_custom_command(OUTPUT "${stamp}"
                COMMAND ${CMAKE_CXX_COMPILER} ${flags} "${source}"
                COMMAND ${CMAKE_COMMAND} -E make_directory "${stamp_dir}"
                COMMAND ${CMAKE_COMMAND} -E touch "${stamp}"
                DEPENDS "${source}"
                IMPLICIT_DEPENDS CXX "${source}"
                COMMENT "Checking ${name} for the 32-bit head unit"
                VERBATIM)
            list(APPEND stamps "${stamp}")
        endforeach()
    endforeach()
    add_custom_target(check32 ALL DEPENDS ${stamps})
endfunction()
