# The installed programs find their library and their symbol databases, even after the
# installation was moved.
include(${CMAKE_CURRENT_LIST_DIR}/package_steps.cmake)

set(prefix ${WORK}/prefix)
install_to(${prefix})
foreach(program labelport labelport-trace labelport-workbench)
    if(NOT EXISTS ${prefix}/${BINDIR}/${program})
        message(SEND_ERROR "${program} is not installed")
    endif()
endforeach()
# The folder of programs has links; the programs are in a folder with their symbol databases.
foreach(file labelport labelport-trace labelport-workbench symbols.db legacy_symbols.db)
    if(NOT EXISTS ${prefix}/${PROGRAMDIR}/${file})
        message(SEND_ERROR "${file} is not installed with the programs")
    endif()
endforeach()

# The loader must use the installed libraries, not those of the build.
run(OUTPUT libraries COMMAND ldd ${prefix}/${PROGRAMDIR}/labelport-trace)
if(NOT libraries MATCHES "liblabelport\\.so[^\n]* => ${prefix}/")
    message(SEND_ERROR "labelport-trace takes another library:\n${libraries}")
endif()
if(NOT libraries MATCHES "liblabelport-logging\\.so[^\n]* => ${prefix}/")
    message(SEND_ERROR "labelport-trace takes another logging library:\n${libraries}")
endif()

run(OUTPUT trace COMMAND
    ${prefix}/${BINDIR}/labelport-trace ${SOURCE}/samples/tavrel/asset_tag_2000020.cnv)
if(NOT trace MATCHES "\"call\":\"completeCanvasLoading\"")
    message(SEND_ERROR "labelport-trace did not import the label:\n${trace}")
endif()

# This label refers to a symbol by name only.
set(sample ${SOURCE}/samples/tavrel/warning_sign_2000019.roc)
file(REMOVE_RECURSE ${WORK}/pictures)
run(COMMAND ${prefix}/${BINDIR}/labelport import --output-dir ${WORK}/pictures ${sample})
if(NOT EXISTS ${WORK}/pictures/warning_sign_2000019.png)
    message(SEND_ERROR "labelport made no picture")
endif()
