# Runs one scenario of the interpreter's tests and checks the exit status and
# standard error against the scenario's header:
#   # exit: N          the exit status (required)
#   # stderr: TEXT     a text that standard error must contain (repeatable)
#   # absent: FILE     a file, relative to WORK_DIR, that the run must not write
#   # written: FILE    a file, relative to WORK_DIR, that the run must write
#                      (a PNG picture if its name ends in .png)
#   # stdout: TEXT     a text that standard output must contain (repeatable)
#   # stdin            the scenario comes on standard input
#   # args: OPTIONS    more options for the simulator, e.g. --screenshot FILE;
#                      {script} stands for this file's path, {dir} for its
#                      folder
#   # alone            the options alone, without --script: for the options
#                      that run no scenario (the file is then only its header)
# Called with -DSIMULATOR=... -DSCRIPT=... -DWORK_DIR=...

file(STRINGS "${SCRIPT}" header REGEX "^# (exit|stderr|stdout|absent|written|stdin|args|alone)")
set(expected_status "")
set(expected_texts "")
set(expected_output "")
set(alone FALSE)
set(absent_files "")
set(written_files "")
set(use_stdin FALSE)
set(extra_args "")
foreach(line IN LISTS header)
    if(line MATCHES "^# exit: ([0-9]+)$")
        set(expected_status "${CMAKE_MATCH_1}")
    elseif(line MATCHES "^# stderr: (.+)$")
        list(APPEND expected_texts "${CMAKE_MATCH_1}")
    elseif(line MATCHES "^# absent: (.+)$")
        list(APPEND absent_files "${CMAKE_MATCH_1}")
    elseif(line MATCHES "^# written: (.+)$")
        list(APPEND written_files "${CMAKE_MATCH_1}")
    elseif(line MATCHES "^# stdout: (.+)$")
        list(APPEND expected_output "${CMAKE_MATCH_1}")
    elseif(line MATCHES "^# stdin$")
        set(use_stdin TRUE)
    elseif(line MATCHES "^# alone$")
        set(alone TRUE)
    elseif(line MATCHES "^# args: (.+)$")
        get_filename_component(script_dir "${SCRIPT}" DIRECTORY)
        string(REPLACE "{script}" "${SCRIPT}" options "${CMAKE_MATCH_1}")
        string(REPLACE "{dir}" "${script_dir}" options "${options}")
        separate_arguments(more UNIX_COMMAND "${options}")
        list(APPEND extra_args ${more})
    endif()
endforeach()
if(expected_status STREQUAL "")
    message(FATAL_ERROR "${SCRIPT}: no '# exit: N' line in the header")
endif()

file(REMOVE_RECURSE "${WORK_DIR}")
file(MAKE_DIRECTORY "${WORK_DIR}")
if(alone)
    execute_process(COMMAND "${SIMULATOR}" --platform offscreen ${extra_args}
        WORKING_DIRECTORY "${WORK_DIR}"
        RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err TIMEOUT 120)
elseif(use_stdin)
    execute_process(COMMAND "${SIMULATOR}" --platform offscreen ${extra_args} --script -
        INPUT_FILE "${SCRIPT}" WORKING_DIRECTORY "${WORK_DIR}"
        RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err TIMEOUT 120)
else()
    execute_process(COMMAND "${SIMULATOR}" --platform offscreen ${extra_args} --script "${SCRIPT}"
        WORKING_DIRECTORY "${WORK_DIR}"
        RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err TIMEOUT 120)
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
foreach(text IN LISTS expected_output)
    string(FIND "${out}" "${text}" at)
    if(at EQUAL -1)
        message(FATAL_ERROR "standard output lacks: ${text}\nstandard output:\n${out}")
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
    if(file MATCHES "\\.png$")
        file(READ "${WORK_DIR}/${file}" signature LIMIT 8 HEX)
        if(NOT signature STREQUAL "89504e470d0a1a0a")
            message(FATAL_ERROR "${file} is no PNG picture")
        endif()
    endif()
endforeach()
