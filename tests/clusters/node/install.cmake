# Installs the tests' programs from the npm registry, in the versions of the lock file.
#
# SOURCE  the folder of package.json
# FOLDER  gets node_modules

find_program(NPM npm)
if(NOT NPM)
    message(FATAL_ERROR "npm is missing: install Node.js with npm. The tests of clusters need it.")
endif()
file(MAKE_DIRECTORY ${FOLDER})
file(COPY ${SOURCE}/package.json ${SOURCE}/package-lock.json DESTINATION ${FOLDER})
file(SHA256 ${FOLDER}/package-lock.json wanted)
set(mark ${FOLDER}/node_modules/.installed)
if(EXISTS ${mark})
    file(READ ${mark} installed)
    if(installed STREQUAL wanted)
        return()
    endif()
endif()
execute_process(
    COMMAND ${NPM} ci --ignore-scripts --no-audit --no-fund --prefer-offline
    WORKING_DIRECTORY ${FOLDER}
    RESULT_VARIABLE status
    OUTPUT_VARIABLE output
    ERROR_VARIABLE output)
if(NOT status EQUAL 0)
    message(FATAL_ERROR
        "Cannot install the packages of tests/clusters/node/package.json from the npm registry. The "
        "network is needed once; afterwards the tests run without it.\n${output}")
endif()
file(WRITE ${mark} ${wanted})
