# What `cmake --install` lays out, in one of two layouts:
#
#  headunit  the head unit's own tree: the plug-in in the unit's plug-in
#            directory, and the artwork (and translations) under
#            /application/resource/carcontrol, the absolute paths that the
#            plug-in reads. The default of a cross build.
#  bench     a test bench's tree under CMAKE_INSTALL_PREFIX: the simulator
#            as bin/headunit-sim, with the plug-in, the sample reverse
#            plug-in, the desktop host, the artwork and the catalogue beside
#            it, where the simulator finds them relative to itself. The
#            default of a desktop build.
#
# Components: "plugin" (the plug-in), "artwork" (its pictures),
# "translations" (the plug-in's translations, where there are any), and for
# the bench "simulator" (the simulator, the desktop host, the sample reverse
# plug-in, the catalogue and the menu entry).

if(CMAKE_CROSSCOMPILING)
    set(_carcontrol_default_layout headunit)
else()
    set(_carcontrol_default_layout bench)
endif()
set(CARCONTROL_INSTALL_LAYOUT "${_carcontrol_default_layout}" CACHE STRING
    "What cmake --install lays out: headunit (the unit's tree) or bench (the simulator's)")
set_property(CACHE CARCONTROL_INSTALL_LAYOUT PROPERTY STRINGS headunit bench)
if(NOT CARCONTROL_INSTALL_LAYOUT MATCHES "^(headunit|bench)$")
    message(FATAL_ERROR "CARCONTROL_INSTALL_LAYOUT is '${CARCONTROL_INSTALL_LAYOUT}': give headunit or bench")
endif()
if(CARCONTROL_UNIT_ONLY AND NOT CARCONTROL_INSTALL_LAYOUT STREQUAL "headunit")
    message(FATAL_ERROR "unit build: the bench layout needs the simulator, which a unit build doesn't make")
endif()

# The head unit's GUI process loads its plug-ins from a directory of its own,
# which differs between units; give it here if the unit's is another.
set(CARCONTROL_HEADUNIT_PLUGIN_DIR "/application/plugins" CACHE PATH
    "The head unit's plug-in directory (absolute), for the headunit layout")
# The root of the plug-in's pictures on the unit: the plug-in reads this
# path as it stands.
set(CARCONTROL_HEADUNIT_RESOURCE_ROOT "/application/resource/carcontrol")

# The bench's tree, relative to the prefix; the simulator finds its parts
# from bin/.
set(CARCONTROL_BENCH_PLUGIN_DIR "lib/carcontrol/plugins")
set(CARCONTROL_BENCH_HOST_DIR "lib/carcontrol/host")
set(CARCONTROL_BENCH_RESOURCE_DIR "share/carcontrol/resource/carcontrol")
set(CARCONTROL_BENCH_CATALOGUE_DIR "share/carcontrol/catalogue")
if(TARGET headunit-sim)
    target_compile_definitions(headunit-sim PRIVATE
        SIMULATOR_INSTALLED_PLUGIN_DIR="../${CARCONTROL_BENCH_PLUGIN_DIR}"
        SIMULATOR_INSTALLED_RESOURCE_ROOT="../${CARCONTROL_BENCH_RESOURCE_DIR}"
        SIMULATOR_INSTALLED_CATALOGUE_FILE="../${CARCONTROL_BENCH_CATALOGUE_DIR}/catalogue.json")
endif()

if(CARCONTROL_INSTALL_LAYOUT STREQUAL "headunit")
    set(CARCONTROL_INSTALL_PLUGIN_DIR "${CARCONTROL_HEADUNIT_PLUGIN_DIR}")
    set(CARCONTROL_INSTALL_RESOURCE_DIR "${CARCONTROL_HEADUNIT_RESOURCE_ROOT}")
else()
    set(CARCONTROL_INSTALL_PLUGIN_DIR "${CARCONTROL_BENCH_PLUGIN_DIR}")
    set(CARCONTROL_INSTALL_RESOURCE_DIR "${CARCONTROL_BENCH_RESOURCE_DIR}")
endif()
# Where the translations go: beside the artwork, in both layouts.
set(CARCONTROL_INSTALL_TRANSLATIONS_DIR "${CARCONTROL_INSTALL_RESOURCE_DIR}/translations")

install(TARGETS carcontrol LIBRARY DESTINATION "${CARCONTROL_INSTALL_PLUGIN_DIR}" COMPONENT plugin)
install(DIRECTORY "${CARCONTROL_RESOURCE_ROOT}/style4" "${CARCONTROL_RESOURCE_ROOT}/exStyle4"
    DESTINATION "${CARCONTROL_INSTALL_RESOURCE_DIR}" COMPONENT artwork)
if(CARCONTROL_QM_FILES)
    install(FILES ${CARCONTROL_QM_FILES} DESTINATION "${CARCONTROL_INSTALL_TRANSLATIONS_DIR}" COMPONENT translations)
endif()

if(CARCONTROL_INSTALL_LAYOUT STREQUAL "bench")
    # The installed simulator finds the desktop host by a run path relative
    # to itself; the plug-ins take the host's symbols from the simulator's
    # process and need none.
    set_target_properties(headunit-sim PROPERTIES INSTALL_RPATH "$ORIGIN/../${CARCONTROL_BENCH_HOST_DIR}")
    install(TARGETS headunit-sim RUNTIME DESTINATION bin COMPONENT simulator)
    install(TARGETS carhost LIBRARY DESTINATION "${CARCONTROL_BENCH_HOST_DIR}" COMPONENT simulator)
    install(TARGETS reversesample LIBRARY DESTINATION "${CARCONTROL_INSTALL_PLUGIN_DIR}" COMPONENT simulator)
    get_filename_component(_carcontrol_catalogue_dir "${CARCONTROL_CATALOGUE_FILE}" DIRECTORY)
    install(FILES "${CARCONTROL_CATALOGUE_FILE}" "${_carcontrol_catalogue_dir}/catalogue.md"
        DESTINATION "${CARCONTROL_BENCH_CATALOGUE_DIR}" COMPONENT simulator)
    install(FILES "${CMAKE_SOURCE_DIR}/packaging/headunit-sim.desktop"
        DESTINATION share/applications COMPONENT simulator)
    file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/packaging")
    configure_file("${CMAKE_SOURCE_DIR}/packaging/headunit-sim.1" "${CMAKE_BINARY_DIR}/packaging/headunit-sim.1" COPYONLY)
    execute_process(COMMAND gzip -9nf "${CMAKE_BINARY_DIR}/packaging/headunit-sim.1")
    install(FILES "${CMAKE_BINARY_DIR}/packaging/headunit-sim.1.gz" DESTINATION share/man/man1 COMPONENT simulator)
    # The scenario language's reference (the README's section) and the
    # scenarios of the tests as examples, which the manual page points to.
    file(READ "${CMAKE_SOURCE_DIR}/README.md" _carcontrol_readme)
    string(REGEX MATCH "\n### Scenarios\n.*" _carcontrol_scenarios "${_carcontrol_readme}")
    string(REGEX REPLACE "\n## .*" "\n" _carcontrol_scenarios "${_carcontrol_scenarios}")
    string(REGEX REPLACE "^\n###" "#" _carcontrol_scenarios "${_carcontrol_scenarios}")
    file(WRITE "${CMAKE_BINARY_DIR}/packaging/scenarios.md" "${_carcontrol_scenarios}")
    install(FILES "${CMAKE_BINARY_DIR}/packaging/scenarios.md"
        DESTINATION share/doc/carcontrol-bench COMPONENT simulator)
    file(GLOB _carcontrol_examples "${CMAKE_SOURCE_DIR}/tests/scenarios/*.scn")
    install(FILES ${_carcontrol_examples} DESTINATION share/doc/carcontrol-bench/examples COMPONENT simulator)
endif()
