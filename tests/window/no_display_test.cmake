# Runs the window program without a display and without a login session: help, version and pictures
# must work, and nothing else may be printed.

file(REMOVE_RECURSE ${FOLDER})
file(MAKE_DIRECTORY ${FOLDER})

# start(STATUS OUTPUT ERRORS argument...): each of the three is a regular expression that must match
# completely.
function(start expected_status expected_output expected_errors)
    execute_process(
        COMMAND ${CMAKE_COMMAND} -E env
            --unset=DISPLAY --unset=WAYLAND_DISPLAY --unset=QT_QPA_PLATFORM
            --unset=XDG_RUNTIME_DIR LANGUAGE=en HOME=${FOLDER} XDG_CONFIG_HOME=${FOLDER}/config
            ASAN_OPTIONS=detect_leaks=0
            ${PROGRAM} ${ARGN}
        RESULT_VARIABLE status
        OUTPUT_VARIABLE output
        ERROR_VARIABLE errors
        TIMEOUT 60)
    foreach(part status output errors)
        if(NOT "${${part}}" MATCHES "^${expected_${part}}$")
            message(SEND_ERROR "${ARGN}: the ${part} is\n${${part}}\nexpected ${expected_${part}}")
        endif()
    endforeach()
endfunction()

start(0 "Usage: .*--screenshot.*" "" --help)
start(0 "LabelPort Workbench [0-9.]+\n" "" --version)

set(picture ${FOLDER}/label.png)
start(0 "${picture}\n" "" --screenshot ${picture} ${LABEL})
file(SIZE ${picture} size)
# The picture of an empty window has only a few hundred bytes.
if(size LESS 10000)
    message(SEND_ERROR "the picture has only ${size} bytes")
endif()

# The address of a link in a report.
start(0 "${picture}\n" "" --screenshot ${picture} labelport://${LABEL})
file(SIZE ${picture} linked_size)
if(linked_size LESS 10000)
    message(SEND_ERROR "the picture of an address has only ${linked_size} bytes")
endif()

start(1 "" "labelport-workbench: Cannot open \"nofile.odg\": [^\n]+\n"
    nofile.odg --screenshot ${FOLDER}/none.png)
if(EXISTS ${FOLDER}/none.png)
    message(SEND_ERROR "a picture of no label was written")
endif()
start(1 "" "labelport-workbench: Cannot write [^\n]+\n" --screenshot ${FOLDER}/missing/x.png)
start(1 "" "labelport-workbench: Cannot show a window: [^\n]+\n" ${LABEL})
start(2 "" "labelport-workbench: [^\n]+\n" ${LABEL} ${LABEL})
