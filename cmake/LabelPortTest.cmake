# labelport_test(NAME [DECIMAL_COMMA [ONCE CASES]] [MOC] SOURCES ... LINK ...)
#
# A test program `NAME` of GoogleTest cases, with the main function of tests/support. CTest runs
# it offscreen, in UTC and in the C locale, and the programs use English.
#
# DECIMAL_COMMA: CTest also runs it as NAME.decimal_comma, in a locale that writes 1,5, to find
# numbers that are read or written in the user's locale by mistake. For readers, command lines,
# saved formats and numbers. ONCE: a filter of GoogleTest for long cases that depend on no locale;
# they are left out of the second run. MOC: the test's own sources have a Q_OBJECT.

# Linking with lld takes an eighth of the time.
find_program(LABELPORT_LLD ld.lld)

function(labelport_test name)
    cmake_parse_arguments(TEST "DECIMAL_COMMA;MOC" "ONCE" "SOURCES;LINK" ${ARGN})
    add_executable(${name} ${TEST_SOURCES})
    target_link_libraries(${name} PRIVATE
        ${TEST_LINK} labelport_test_main GTest::gtest GTest::gmock Qt6::Widgets)
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
    if(LABELPORT_LLD)
        target_link_options(${name} PRIVATE -fuse-ld=lld)
    endif()
    target_compile_options(${name} PRIVATE ${LABELPORT_TEST_OPTIONS})
    labelport_precompile(${name} tests)
    set_target_properties(${name} PROPERTIES
        AUTOMOC ${TEST_MOC}
        ENABLE_EXPORTS ON
        RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/tests)
    set(environment "QT_QPA_PLATFORM=offscreen;TZ=UTC;LANGUAGE=en")
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        TIMEOUT 900
        ENVIRONMENT "${environment};LC_ALL=C.UTF-8")
    if(TEST_DECIMAL_COMMA)
        set(filter "")
        if(TEST_ONCE)
            set(filter "--gtest_filter=-${TEST_ONCE}")
        endif()
        add_test(NAME ${name}.decimal_comma COMMAND ${name} ${filter})
        set_tests_properties(${name}.decimal_comma PROPERTIES
            TIMEOUT 900
            ENVIRONMENT "${environment};LC_ALL=de_DE.UTF-8;LABELPORT_EXPECT_DECIMAL_POINT=,")
    endif()
endfunction()
