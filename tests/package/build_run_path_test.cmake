# The library search path of programs and libraries in a build has no empty entries. An empty entry
# means the current folder, so libraries of the same name in the current folder would be loaded.

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
