# Records a scenario while it runs (--record) and replays the recording:
# both runs must pass, and the recording must send the same frames as the
# scenario, byte for byte and in order (the frame logs' TX lines without
# their times), and expect the same climate commands as the scenario does.
# Called with -DSIMULATOR=... -DSCRIPT=... -DWORK_DIR=...

file(REMOVE_RECURSE "${WORK_DIR}")
file(MAKE_DIRECTORY "${WORK_DIR}")

function(run_simulator script frames)
    execute_process(COMMAND "${SIMULATOR}" --platform offscreen --script "${script}" --frames "${frames}" ${ARGN}
        WORKING_DIRECTORY "${WORK_DIR}" RESULT_VARIABLE status ERROR_VARIABLE err TIMEOUT 120)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "${script}: exit status ${status}\n${err}")
    endif()
endfunction()

# The TX frames of a log, one a line, without times and meanings.
function(sent_frames log out)
    file(STRINGS "${log}" lines REGEX "^ *[0-9.]+ TX")
    set(frames "")
    foreach(line IN LISTS lines)
        string(REGEX REPLACE "^ *[0-9.]+ TX ?([^#]*).*$" "\\1" frame "${line}")
        string(STRIP "${frame}" frame)
        string(APPEND frames "${frame}\n")
    endforeach()
    set(${out} "${frames}" PARENT_SCOPE)
endfunction()

run_simulator("${SCRIPT}" "${WORK_DIR}/scenario.log" --record "${WORK_DIR}/recording.scn")
run_simulator("${WORK_DIR}/recording.scn" "${WORK_DIR}/recording.log")
sent_frames("${WORK_DIR}/scenario.log" scenario)
sent_frames("${WORK_DIR}/recording.log" recording)
file(STRINGS "${SCRIPT}" scenario_commands REGEX "^expect command ")
file(STRINGS "${WORK_DIR}/recording.scn" recorded_commands REGEX "^expect command ")
if(scenario STREQUAL "" AND scenario_commands STREQUAL "")
    message(FATAL_ERROR "${SCRIPT} sent no frames and no climate commands to compare")
endif()
if(NOT scenario_commands STREQUAL recorded_commands)
    message(FATAL_ERROR "the recording expects other climate commands than the scenario\n"
        "scenario: ${scenario_commands}\nrecording: ${recorded_commands}")
endif()
if(NOT scenario STREQUAL recording)
    message(FATAL_ERROR "the recording sent other frames than the scenario\nscenario:\n${scenario}\nrecording:\n${recording}")
endif()
