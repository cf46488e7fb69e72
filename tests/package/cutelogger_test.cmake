# LabelPort with the real CuteLogger: both are built here, and the trace of each sample must be the
# same as with the bundled logging library.
include(${CMAKE_CURRENT_LIST_DIR}/package_steps.cmake)

set(settings
    -G Ninja
    -D CMAKE_BUILD_TYPE=${CONFIG}
    -D CMAKE_CXX_COMPILER=${COMPILER})

# No optimization: only the traces matter, and the build is most of this test's time.
set(library ${WORK}/cutelogger/libCuteLogger.so)
run(COMMAND ${CMAKE_COMMAND} -S ${CUTELOGGER} -B ${WORK}/cutelogger ${settings}
    -D CMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}
    -D CMAKE_CXX_FLAGS=-O0)
run(COMMAND ${CMAKE_COMMAND} --build ${WORK}/cutelogger)

run(COMMAND ${CMAKE_COMMAND} -S ${SOURCE} -B ${WORK}/labelport ${settings}
    -D CMAKE_CXX_FLAGS_DEBUG=-O0
    -D CMAKE_CXX_FLAGS_RELEASE=-O0
    -D LABELPORT_BUILD_TESTS=OFF
    -D LABELPORT_CUTELOGGER=SYSTEM
    -D LABELPORT_CUTELOGGER_INCLUDE=${CUTELOGGER}/include
    -D LABELPORT_CUTELOGGER_LIBRARY=${library})
run(COMMAND ${CMAKE_COMMAND} --build ${WORK}/labelport
    --target labelport-trace labelport_symbol_databases)

run(OUTPUT linked COMMAND ${CMAKE_COMMAND} -E env LD_LIBRARY_PATH=${WORK}/cutelogger
    ldd ${WORK}/labelport/bin/labelport-trace)
if(NOT linked MATCHES "libCuteLogger" OR linked MATCHES "liblabelport-logging")
    message(FATAL_ERROR "The program does not use CuteLogger:\n${linked}")
endif()

file(GLOB samples
    ${SOURCE}/samples/tavrel/*.cnv ${SOURCE}/samples/tavrel/*.roc
    ${SOURCE}/samples/orvanta/*.qmtx
    ${SOURCE}/samples/opendocument/*.odt ${SOURCE}/samples/opendocument/*.odg)
list(LENGTH samples count)
if(count LESS 20)
    message(FATAL_ERROR "only ${count} samples")
endif()

# Damaged labels, because the samples import without a log record.
file(WRITE ${WORK}/broken.qmtx "<label>")
file(WRITE ${WORK}/broken.odg "not a package")
file(WRITE ${WORK}/broken.cnv "not a canvas")
list(APPEND samples ${WORK}/broken.qmtx ${WORK}/broken.odg ${WORK}/broken.cnv)

set(records 0)
foreach(sample IN LISTS samples)
    # Status 1 means that the label was not imported; it has a trace, too.
    foreach(build ${BUILD} ${WORK}/labelport)
        execute_process(COMMAND ${CMAKE_COMMAND} -E env LD_LIBRARY_PATH=${WORK}/cutelogger
                ${build}/bin/labelport-trace ${sample}
            RESULT_VARIABLE status OUTPUT_VARIABLE trace ERROR_VARIABLE errors)
        if(NOT status MATCHES "^[01]$" OR trace STREQUAL "")
            message(FATAL_ERROR "${build}: the trace of ${sample} ended with ${status}\n${errors}")
        endif()
        if(build STREQUAL "${BUILD}")
            set(expected "${status}\n${trace}")
        elseif(NOT "${status}\n${trace}" STREQUAL expected)
            file(WRITE ${WORK}/expected.jsonl "${expected}")
            file(WRITE ${WORK}/actual.jsonl "${status}\n${trace}")
            message(SEND_ERROR "The trace of ${sample} differs with CuteLogger:
                compare expected.jsonl and actual.jsonl in ${WORK}")
        endif()
    endforeach()
    string(REGEX MATCHALL "\"log\":" found "${trace}")
    list(LENGTH found found)
    math(EXPR records "${records} + ${found}")
endforeach()
if(records EQUAL 0)
    message(FATAL_ERROR "No trace has a log record: the comparison shows nothing")
endif()
