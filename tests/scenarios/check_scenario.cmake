# Runs one scenario of the interpreter's tests and checks the exit status and
# standard error against the scenario's header:
#   # exit: N          the exit status (required)
#   # stderr: TEXT     a text that standard error must contain (repeatable)
#   # absent: FILE     a file, relative to WORK_DIR, that the run must not write
#   # written: FILE    a file, relative to WORK_DIR, that the run must write
#   # stdin            the scenario comes on standard input
# Called with -DSIMULATOR=... -DSCRIPT=... -DWORK_DIR=...

file(STRINGS "${SCRIPT}" header REGEX "^# (exit|stderr|absent|written|stdin)")
set(expected_status "")
set(expected_texts "")
set(absent_files "")
set(written_files "")
set(use_stdin FALSE)
foreach(line IN LISTS header)
    if(line MATCHES "^# exit: ([0-9]+)$")
        set(expected_status "${CMAKE_MATCH_1}")
    elseif(line MATCHES "^# stderr: (.+)$")
        list(APPEND expected_texts "${CMAKE_MATCH_1}")
    elseif(line MATCHES "^# absent: (.+)$")
        list(APPEND absent_files "${CMAKE_MATCH_1}")
    elseif(line MATCHES "^# written: (.+)$")
        list(APPEND written_files "${CMAKE_MATCH_1}")
    elseif(line MATCHES "^# stdin$")
        set(use_stdin TRUE)
    endif()
endforeach()
if(expected_status STREQUAL "")
    message(FATAL_ERROR "${SCRIPT}: no '# exit: N' line in the header")
endif()

file(REMOVE_RECURSE "${WORK_DIR}")
file(MAKE_DIRECTORY "${WORK_DIR}")
if(use_stdin)
    execute_process(COMMAND "${SIMULATOR}" --platform offscreen --script -
        INPUT_FILE "${SCRIPT}" WORKING_DIRECTORY "${WORK_DIR}"
        RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err)
else()
    execute_process(COMMAND "${SIMULATOR}" --platform offscreen --script "${SCRIPT}"
        WORKING_DIRECTORY "${WORK_DIR}"
        RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err)
endif()

if(NOT status STREQUAL expected_status)
    message(FATAL_ERROR "exit status ${status}, expected ${expected_status}\nstandard error:\n${err}")
endif()
foreach(text IN LISTS expected_texts)
    string(FIND "${err}" "${text}" at)
    if(at EQUAL -1)
        message(FATAL_ERROR "standard error lacks: ${text}\nstandard error:\n${err}")
    endif()
endforeach()
foreach(file IN LISTS absent_files)
    if(EXISTS "${WORK_DIR}/${file}")
        message(FATAL_ERROR "${file} was written, but the run should have stopped before")
    endif()
endforeach()
foreach(file IN LISTS written_files)
    if(NOT EXISTS "${WORK_DIR}/${file}")
        message(FATAL_ERROR "${file} wasn't written")
    endif()
endforeach()
