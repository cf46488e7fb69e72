# labelport_test(NAME SOURCES ... LINK ...)
#
# A test program `NAME` of GoogleTest cases, registered with CTest as one test.
# Runs offscreen, in UTC, with the main function of tests/support.
function(labelport_test name)
    cmake_parse_arguments(TEST "" "" "SOURCES;LINK" ${ARGN})
    add_executable(${name} ${TEST_SOURCES})
    target_link_libraries(${name} PRIVATE
        ${TEST_LINK} labelport_test_main GTest::gtest GTest::gmock Qt6::Widgets)
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
    set_target_properties(${name} PROPERTIES
        ENABLE_EXPORTS ON
        RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/tests)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        TIMEOUT 600
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;TZ=UTC")
endfunction()
