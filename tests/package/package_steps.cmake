# Common steps of the tests in this folder.

# run(OUTPUT variable COMMAND ...): runs a command, which must succeed, and stores its standard
# output in the variable.
function(run)
    cmake_parse_arguments(RUN "" "OUTPUT" "COMMAND" ${ARGN})
    execute_process(COMMAND ${RUN_COMMAND}
        RESULT_VARIABLE status
        OUTPUT_VARIABLE output
        ERROR_VARIABLE errors)
    if(NOT status EQUAL 0)
        list(JOIN RUN_COMMAND " " command)
        message(FATAL_ERROR "${command}\nended with ${status}\n${output}\n${errors}")
    endif()
    if(RUN_OUTPUT)
        set(${RUN_OUTPUT} "${output}" PARENT_SCOPE)
    endif()
endfunction()

# install_to(prefix [component...]): installs the build, or components of it, and then moves the
# result to the prefix: an installation with absolute paths would not work there.
function(install_to prefix)
    file(REMOVE_RECURSE ${prefix} ${prefix}.made)
    set(install ${CMAKE_COMMAND} --install ${BUILD} --config ${CONFIG} --prefix ${prefix}.made)
    if(ARGN)
        foreach(component IN LISTS ARGN)
            run(COMMAND ${install} --component ${component})
        endforeach()
    else()
        run(COMMAND ${install})
    endif()
    file(RENAME ${prefix}.made ${prefix})
endfunction()

# expect_lines(text line...): the text has these complete lines in this order.
function(expect_lines text)
    set(rest "\n${text}")
    foreach(line IN LISTS ARGN)
        string(FIND "${rest}" "\n${line}\n" at)
        if(at EQUAL -1)
            message(SEND_ERROR "line missing, or before the others:\n${line}\nin\n${text}")
            return()
        endif()
        string(LENGTH "\n${line}" length)
        math(EXPR at "${at} + ${length}")
        string(SUBSTRING "${rest}" ${at} -1 rest)
    endforeach()
endfunction()

# expect_without(file text...): the file does not contain the texts.
function(expect_without file)
    file(READ ${file} content)
    foreach(text IN LISTS ARGN)
        string(FIND "${content}" "${text}" at)
        if(NOT at EQUAL -1)
            message(SEND_ERROR "${file} mentions ${text}")
        endif()
    endforeach()
endfunction()

# try_example(program): imports a label of each format, and a file that is not a label.
function(try_example program)
    run(OUTPUT text COMMAND ${program} ${SOURCE}/samples/tavrel/asset_tag_2000020.cnv)
    expect_lines("${text}"
        "page 180.0 x 90.0 pt"
        "  rounded rectangle  174.2 x 84.2 pt at 2.9, 2.9"
        "  text               158.4 x 17.3 pt at 10.8, 7.2"
        "  barcode            158.4 x 36.0 pt at 10.8, 28.8"
        "4 items"
        "source SequenceDatasource (End, Prefix, Start, Step, Suffix, ZeroPad)")

    run(OUTPUT text COMMAND ${program} ${SOURCE}/samples/orvanta/shapes_sheet.qmtx)
    expect_lines("${text}"
        "page 372.0 x 276.0 pt"
        "  rectangle          44.0 x 40.0 pt at 20.0, 12.0"
        "  ellipse            44.0 x 40.0 pt at 164.0, 12.0"
        "  triangle           44.0 x 40.0 pt at 308.0, 12.0"
        "  octagon            44.0 x 40.0 pt at 308.0, 78.0"
        "  picture            42.0 x 40.0 pt at 310.0, 210.0"
        "40 items")

    run(OUTPUT text COMMAND ${program} ${SOURCE}/samples/opendocument/address_label.odg)
    expect_lines("${text}"
        "page 252.3 x 102.0 pt"
        "  rounded rectangle  243.8 x 93.5 pt at 4.3, 4.3"
        "  symbol             51.0 x 51.0 pt at 14.2, 22.7"
        "  line               158.7 x 0.0 pt at 79.4, 29.8"
        "7 items")

    execute_process(COMMAND ${program} ${SOURCE}/README.md
        RESULT_VARIABLE status OUTPUT_VARIABLE text ERROR_VARIABLE errors)
    if(NOT status EQUAL 1 OR NOT errors MATCHES "cannot import .*README.md" OR NOT text STREQUAL "")
        message(SEND_ERROR "not a label: ended with ${status}, wrote\n${text}\n${errors}")
    endif()
endfunction()
