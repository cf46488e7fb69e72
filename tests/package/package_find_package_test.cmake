# find_package(LabelPort): the library and its development files are sufficient to build and
# run the example.
include(${CMAKE_CURRENT_LIST_DIR}/package_steps.cmake)

set(prefix ${WORK}/prefix)
install_to(${prefix} library development)

# Private headers are not installed, and no file refers to the build folder.
file(GLOB package_files ${prefix}/${LIBDIR}/cmake/LabelPort/*.cmake)
list(LENGTH package_files count)
if(count LESS 4)
    message(FATAL_ERROR "the package is incomplete: ${package_files}")
endif()
foreach(file IN LISTS package_files)
    expect_without(${file} ${BUILD} ${SOURCE}
        labelport_tavrel labelport_orvanta labelport_opendocument labelport_importer
        labelport_supply labelport_numeric labelport_limits GuiPrivate ZLIB)
endforeach()
file(READ ${prefix}/${LIBDIR}/cmake/LabelPort/LabelPortTargets.cmake targets)
foreach(target LabelPort Host Logging)
    if(NOT targets MATCHES "add_library\\(LabelPort::${target} ")
        message(SEND_ERROR "LabelPort::${target} is not exported")
    endif()
endforeach()

# A copy of the example, so that it cannot find headers in the source tree.
file(REMOVE_RECURSE ${WORK}/embedding ${WORK}/build)
file(COPY ${SOURCE}/examples/embedding DESTINATION ${WORK})
run(COMMAND ${CMAKE_COMMAND} -S ${WORK}/embedding -B ${WORK}/build
    -D CMAKE_PREFIX_PATH=${prefix}
    -D CMAKE_BUILD_TYPE=${CONFIG}
    -D CMAKE_CXX_COMPILER=${COMPILER}
    -D CMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}
    "-D CMAKE_CXX_FLAGS=${FLAGS} -Wall -Wextra -Werror")
run(COMMAND ${CMAKE_COMMAND} --build ${WORK}/build)
try_example(${WORK}/build/embedding)
