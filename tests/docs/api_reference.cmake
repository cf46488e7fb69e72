# The API reference is made of every public header, and each name in them says what it is: doxygen
# is set to fail on what it would warn of.
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
file(READ ${DOXYFILE} settings)
file(WRITE ${WORK}/Doxyfile "${settings}\nOUTPUT_DIRECTORY = ${WORK}\n")
execute_process(COMMAND ${DOXYGEN} ${WORK}/Doxyfile
    RESULT_VARIABLE status ERROR_VARIABLE complaints)
if(NOT status EQUAL 0 OR complaints)
    message(FATAL_ERROR "doxygen ended with ${status}:\n${complaints}")
endif()
foreach(name IN ITEMS
        LegacyTemplateImporter LegacySupplyInfo TalCanvasModel ClassFactory Item PenItem Logger)
    if(NOT EXISTS ${WORK}/html/class${name}.html)
        message(SEND_ERROR "there is no page about ${name}")
    endif()
endforeach()
file(READ ${WORK}/html/index.html index)
if(NOT index MATCHES "classLegacyTemplateImporter.html")
    message(SEND_ERROR "the main page does not lead to LegacyTemplateImporter")
endif()
