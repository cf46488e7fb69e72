# Precompiled headers, shared by all targets: otherwise more than half of the build time is spent on
# the same headers of Qt and the standard library.

option(LABELPORT_PRECOMPILED_HEADERS "Precompile the headers that most sources include" ON)

# Executables use the code model of libraries, so that both can use one precompiled header.
set(CMAKE_CXX_COMPILE_OPTIONS_PIE ${CMAKE_CXX_COMPILE_OPTIONS_PIC})

# labelport_precompile(TARGET core|widgets|tests)
#
# TARGET uses cmake/precompiled/core.h, widgets.h or tests.h. TARGET must link the modules
# below: the compiler rejects a precompiled header if a macro is missing that it was made with.
set(LABELPORT_PRECOMPILED_core Qt6::Core)
set(LABELPORT_PRECOMPILED_widgets Qt6::Widgets)
set(LABELPORT_PRECOMPILED_tests Qt6::Widgets GTest::gtest GTest::gmock)

# Optimizing the test code takes far longer than it saves; the tested code is optimized as usual.
# The precompiled header must be compiled with the same options.
set(LABELPORT_TEST_OPTIONS $<$<NOT:$<CONFIG:Debug>>:-O1>)

function(labelport_precompile target header)
    if(NOT LABELPORT_PRECOMPILED_HEADERS)
        return()
    endif()
    set(provider labelport_precompiled_${header})
    if(NOT TARGET ${provider})
        add_library(${provider} OBJECT ${PROJECT_SOURCE_DIR}/cmake/precompiled/precompiled.cpp)
        target_link_libraries(${provider} PRIVATE ${LABELPORT_PRECOMPILED_${header}})
        target_precompile_headers(${provider} PRIVATE
            ${PROJECT_SOURCE_DIR}/cmake/precompiled/${header}.h)
        set_target_properties(${provider} PROPERTIES AUTOMOC OFF)
        if(header STREQUAL tests)
            target_compile_options(${provider} PRIVATE ${LABELPORT_TEST_OPTIONS})
        endif()
    endif()
    target_precompile_headers(${target} REUSE_FROM ${provider})
endfunction()
