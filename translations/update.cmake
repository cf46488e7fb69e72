# Collects the translatable texts of the code: all of them into TARGET/labelport_template.ts, and
# what is new into each TARGET/labelport_XX.ts, to be translated there. Texts that the code has no
# longer go. Places in the code are not kept: they would change with every line.
#
# cmake -D LUPDATE=... -D FOLDERS=... -D SOURCE=... -D TARGET=... -P update.cmake
file(GLOB files ${TARGET}/labelport_*.ts)
execute_process(
    COMMAND ${LUPDATE} -silent -no-obsolete -locations none -no-ui-lines
        -source-language en -I . -recursive ${FOLDERS} -ts ${files}
    WORKING_DIRECTORY ${SOURCE}
    ERROR_VARIABLE complaints
    COMMAND_ERROR_IS_FATAL ANY)
# A text in a context that does not exist when the program runs would never be translated.
if(complaints)
    message(FATAL_ERROR "${complaints}")
endif()
