# The installed manual page is the one the simulator makes from its table of
# options (headunit-sim --manual-page), so that it can't leave one out.
# Called with -DSIMULATOR=... -DPAGE=...

execute_process(COMMAND "${SIMULATOR}" --manual-page
    RESULT_VARIABLE status OUTPUT_VARIABLE made ERROR_VARIABLE err TIMEOUT 60)
if(NOT status EQUAL 0)
    message(FATAL_ERROR "headunit-sim --manual-page failed (${status}):\n${err}")
endif()
file(READ "${PAGE}" kept)
if(NOT made STREQUAL kept)
    message(FATAL_ERROR "${PAGE} differs from the simulator's options; make it anew with\n"
        "  build/simulator/headunit-sim --manual-page > packaging/headunit-sim.1")
endif()
