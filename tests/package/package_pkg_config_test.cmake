# labelport.pc: its flags, moc and a compiler are sufficient to build the example.
include(${CMAKE_CURRENT_LIST_DIR}/package_steps.cmake)

set(prefix ${WORK}/prefix)
install_to(${prefix} library development)
expect_without(${prefix}/${LIBDIR}/pkgconfig/labelport.pc ${BUILD} ${SOURCE})

set(ENV{PKG_CONFIG_PATH} ${prefix}/${LIBDIR}/pkgconfig)
run(COMMAND ${PKG_CONFIG} --exists --print-errors "labelport >= 0.1")
run(OUTPUT compile_flags COMMAND ${PKG_CONFIG} --cflags labelport)
run(OUTPUT link_flags COMMAND ${PKG_CONFIG} --libs labelport)
separate_arguments(compile_flags UNIX_COMMAND "${compile_flags}")
separate_arguments(link_flags UNIX_COMMAND "${link_flags}")
separate_arguments(FLAGS UNIX_COMMAND "${FLAGS}")

file(REMOVE_RECURSE ${WORK}/embedding)
file(COPY ${SOURCE}/examples/embedding DESTINATION ${WORK})
file(GLOB sources ${WORK}/embedding/*.cpp)
set(moc_output ${WORK}/embedding/moc_tal_message_box.cpp)
run(COMMAND ${MOC} ${compile_flags} -o ${moc_output}
    ${prefix}/include/labelport/host/services/tal_message_box.h)
run(COMMAND ${COMPILER} -std=c++20 -fPIC ${FLAGS} ${compile_flags} ${sources} ${moc_output}
    -o ${WORK}/embedding/embedding ${link_flags} -Wl,-rpath,${prefix}/${LIBDIR})
try_example(${WORK}/embedding/embedding)
