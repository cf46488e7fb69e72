# Programs and libraries of a build name whole folders in which to look for their libraries. An
# empty name would be the folder where the user stands, and whatever lies there would be loaded.

file(GLOB files ${BUILD}/bin/*)
set(seen 0)
foreach(file IN LISTS files)
    execute_process(COMMAND ${READELF} --dynamic --wide ${file}
        OUTPUT_VARIABLE entries ERROR_QUIET)
    if(NOT entries MATCHES "path: \\[([^]\n]*)\\]")
        continue()
    endif()
    math(EXPR seen "${seen} + 1")
    set(folders ":${CMAKE_MATCH_1}:")
    if(folders MATCHES "::")
        message(SEND_ERROR "${file} looks for libraries in the current folder: ${CMAKE_MATCH_1}")
    endif()
endforeach()

if(seen EQUAL 0)
    message(FATAL_ERROR "no file in ${BUILD}/bin says where it looks for libraries")
endif()
