# labelport_test(NAME SOURCES ... LINK ...)
#
# A test program `NAME` of GoogleTest cases, with the main function of tests/support.
# CTest runs it twice, offscreen and in UTC: in the C locale, and as NAME.decimal_comma
# in a locale that writes 1,5, so that no number is read or written right by luck. Both times
# programs speak English.
function(labelport_test name)
    cmake_parse_arguments(TEST "" "" "SOURCES;LINK" ${ARGN})
    add_executable(${name} ${TEST_SOURCES})
    target_link_libraries(${name} PRIVATE
        ${TEST_LINK} labelport_test_main GTest::gtest GTest::gmock Qt6::Widgets)
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
    labelport_precompile(${name} tests)
    set_target_properties(${name} PROPERTIES
        ENABLE_EXPORTS ON
        RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/tests)
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        TIMEOUT 900
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;TZ=UTC;LC_ALL=C.UTF-8;LANGUAGE=en")
    add_test(NAME ${name}.decimal_comma COMMAND ${name})
    set_tests_properties(${name}.decimal_comma PROPERTIES
        TIMEOUT 900
        ENVIRONMENT
        "QT_QPA_PLATFORM=offscreen;TZ=UTC;LC_ALL=de_DE.UTF-8;LANGUAGE=en;LABELPORT_EXPECT_DECIMAL_POINT=,")
endfunction()
