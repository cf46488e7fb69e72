# The message files are up to date: collecting the texts of the code again changes nothing.
file(REMOVE_RECURSE ${WORK})
file(GLOB files ${SOURCE}/translations/labelport_*.ts)
file(COPY ${files} DESTINATION ${WORK})
execute_process(COMMAND ${COLLECT_TEXTS} ${WORK} ${FOLDERS} COMMAND_ERROR_IS_FATAL ANY)
list(LENGTH files count)
if(count LESS 3)
    message(FATAL_ERROR "there are only ${count} message files")
endif()
foreach(file IN LISTS files)
    cmake_path(GET file FILENAME name)
    execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${file} ${WORK}/${name}
        RESULT_VARIABLE differs ERROR_QUIET)
    if(differs)
        execute_process(COMMAND diff ${file} ${WORK}/${name})
        message(SEND_ERROR "${name} is not up to date: build the target translations_update, "
            "then translate what is new")
    endif()
endforeach()
