# A small archive, imported while workers and imports are killed.
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})
execute_process(COMMAND ${PYTHON} ${SCRIPT} make ${WORK}/old 60 ${SAMPLES}
    COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${PYTHON} ${SCRIPT} torment ${PROGRAM} ${WORK}/old ${WORK}/new
        --to label --jobs 2
    COMMAND_ERROR_IS_FATAL ANY)
