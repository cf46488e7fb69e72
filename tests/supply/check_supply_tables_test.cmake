# Run with -D CHECK=<check_supply_tables.cmake> -D GOOD=<folder> -D SCRATCH=<folder>.
# Each case copies the good folder, damages one file and expects the message.
cmake_minimum_required(VERSION 3.25)

file(WRITE ${SCRATCH}/check.cmake
    "cmake_minimum_required(VERSION 3.25)\ninclude(\"${CHECK}\")\nlabelport_check_supply_tables(\"\${FOLDER}\")\n")

function(check folder status output)
    execute_process(COMMAND ${CMAKE_COMMAND} -D FOLDER=${folder} -P ${SCRATCH}/check.cmake
        RESULT_VARIABLE result ERROR_VARIABLE errors OUTPUT_VARIABLE errors)
    # CMake breaks long messages into lines.
    string(REGEX REPLACE "[ \n]+" " " errors "${errors}")
    set(${status} "${result}" PARENT_SCOPE)
    set(${output} "${errors}" PARENT_SCOPE)
endfunction()

function(expect_good case)
    check(${SCRATCH}/${case} result output)
    if(NOT result EQUAL 0)
        message(SEND_ERROR "${case}: refused, ${output}")
    endif()
endfunction()

function(expect_refusal case message)
    check(${SCRATCH}/${case} result output)
    string(FIND "${output}" "${message}" place)
    if(result EQUAL 0)
        message(SEND_ERROR "${case}: accepted")
    elseif(place EQUAL -1)
        message(SEND_ERROR "${case}: expected \"${message}\", got \"${output}\"")
    endif()
endfunction()

function(copy_of_good case)
    file(REMOVE_RECURSE ${SCRATCH}/${case})
    file(COPY ${GOOD}/ DESTINATION ${SCRATCH}/${case})
endfunction()

function(replace_in case file from to)
    file(READ ${SCRATCH}/${case}/${file} text)
    string(REPLACE "${from}" "${to}" changed "${text}")
    if(changed STREQUAL text)
        message(SEND_ERROR "${case}: \"${from}\" is not in ${file}")
    endif()
    file(WRITE ${SCRATCH}/${case}/${file} "${changed}")
endfunction()

copy_of_good(good)
expect_good(good)

# Written back by CMake, which removes carriage returns.
copy_of_good(unix_line_ends)
replace_in(unix_line_ends LabelType.csv "Custom" "Special")
expect_good(unix_line_ends)

copy_of_good(odd_characters)
replace_in(odd_characters RibbonType.csv "Black Ribbon" "\"Black [;], Ribbon\"")
expect_good(odd_characters)

file(REMOVE_RECURSE ${SCRATCH}/nowhere)
expect_refusal(nowhere "LabelType.csv does not exist")

copy_of_good(no_ribbons)
file(REMOVE ${SCRATCH}/no_ribbons/RibbonType.csv)
expect_refusal(no_ribbons "RibbonType.csv does not exist")

copy_of_good(label_missing)
replace_in(label_missing LabelType.csv ",Blackmark Sensed,FFFFFFFF,1,,3,0,0,0,0,0,0,0\n" "")
expect_refusal(label_missing "LabelType.csv has 411 rows after its header line, not 412")

copy_of_good(ribbon_added)
file(APPEND ${SCRATCH}/ribbon_added/RibbonType.csv "R-X,X,0,#000000\r\n")
expect_refusal(ribbon_added "RibbonType.csv has 12 rows after its header line, not 11")

copy_of_good(color_missing)
replace_in(color_missing color1.csv "97,#512826,color_cocoa\n" "")
expect_refusal(color_missing "color1.csv has 97 rows after its header line, not 98")

copy_of_good(empty_line)
replace_in(empty_line color1.csv "97,#512826,color_cocoa" "")
expect_refusal(empty_line "color1.csv, line 99 has 1 columns, not 3")

copy_of_good(header_column_missing)
replace_in(header_column_missing LabelType.csv ",Flat Width" "")
expect_refusal(header_column_missing "LabelType.csv, line 1 has 12 columns, not 13")

copy_of_good(value_missing)
replace_in(value_missing RibbonType.csv "R-WH,White Ribbon,0," "R-WH,White Ribbon,")
expect_refusal(value_missing "RibbonType.csv, line 3 has 3 columns, not 4")

copy_of_good(header_of_palette)
replace_in(header_of_palette color1.csv "Index,Color," "Index,Color,Name")
expect_refusal(header_of_palette "color1.csv, line 1 has 3 columns, not 2")
