# Starts the program on a virtual X screen, once empty and once with a label, and checks the
# content of its screenshots.

file(REMOVE_RECURSE ${FOLDER})
file(MAKE_DIRECTORY ${FOLDER})

function(take_picture name)
    set(picture ${FOLDER}/${name}.png)
    execute_process(
        COMMAND ${CMAKE_COMMAND} -E env
            QT_QPA_PLATFORM=xcb HOME=${FOLDER} XDG_CONFIG_HOME=${FOLDER}/config
            XDG_RUNTIME_DIR=${FOLDER}
            # A sanitizer must find our errors, not leaks of the X libraries.
            ASAN_OPTIONS=detect_leaks=0
            ${XVFB_RUN} -a -s "-screen 0 1400x900x24"
            ${PROGRAM} --screenshot ${picture} ${ARGN}
        RESULT_VARIABLE status
        OUTPUT_VARIABLE output
        ERROR_VARIABLE errors
        TIMEOUT 60)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "${name}: the program ended with ${status}\n${output}${errors}")
    endif()
    if(NOT output STREQUAL "${picture}\n")
        message(FATAL_ERROR "${name}: the program said \"${output}\"")
    endif()
    file(SIZE ${picture} size)
    # The picture of an empty or black window has only a few hundred bytes.
    if(size LESS 10000)
        message(FATAL_ERROR "${name}: the picture has only ${size} bytes")
    endif()
endfunction()

take_picture(empty)
take_picture(label ${LABEL})

file(SHA256 ${FOLDER}/empty.png empty)
file(SHA256 ${FOLDER}/label.png label)
if(empty STREQUAL label)
    message(FATAL_ERROR "The label is not in the window")
endif()
