# labelport_check_supply_tables(FOLDER)
#
# Stops with a message when FOLDER does not hold the three supply tables with the columns and
# rows that old labels count on: LabelType.csv (13 columns, 412 rows), RibbonType.csv (4 columns,
# 11 rows) and color1.csv (2 named columns and 3 values a row, 98 rows). Rows are counted after
# the header line, one line each.

function(labelport_check_supply_tables folder)
    labelport_check_supply_table("${folder}" LabelType.csv 13 13 412)
    labelport_check_supply_table("${folder}" RibbonType.csv 4 4 11)
    labelport_check_supply_table("${folder}" color1.csv 2 3 98)
endfunction()

function(labelport_check_supply_table folder name header_columns columns rows)
    set(file "${folder}/${name}")
    if(NOT EXISTS "${file}")
        message(FATAL_ERROR "Supply tables: ${file} does not exist")
    endif()
    labelport_read_csv_lines("${file}" lines)
    list(LENGTH lines line_count)
    math(EXPR row_count "${line_count} - 1")
    if(NOT row_count EQUAL rows)
        message(FATAL_ERROR
            "Supply tables: ${name} has ${row_count} rows after its header line, not ${rows}")
    endif()
    set(expected ${header_columns})
    set(line_number 1)
    foreach(line IN LISTS lines)
        labelport_count_csv_columns("${line}" found)
        if(NOT found EQUAL expected)
            message(FATAL_ERROR
                "Supply tables: ${name}, line ${line_number} has ${found} columns, not ${expected}")
        endif()
        set(expected ${columns})
        math(EXPR line_number "${line_number} + 1")
    endforeach()
endfunction()

# Semicolons and brackets mean something in a CMake list; none of them parts columns.
function(labelport_read_csv_lines file result)
    file(READ "${file}" text)
    string(REGEX REPLACE "[][;]" "_" text "${text}")
    string(REPLACE "\r" "" text "${text}")
    string(REGEX REPLACE "\n$" "" text "${text}")
    # An empty line must stay an element of the list.
    string(REPLACE "\n\n" "\n,\n" text "${text}")
    string(REPLACE "\n" ";" lines "${text}")
    set(${result} "${lines}" PARENT_SCOPE)
endfunction()

# A comma inside quotes parts nothing. A comma at the end of a line ends its last column; the
# table model does not see a following empty one.
function(labelport_count_csv_columns line result)
    string(REGEX REPLACE "\"[^\"]*\"" "q" line "${line}")
    string(REGEX REPLACE ",$" "" line "${line}")
    string(REGEX MATCHALL "," commas "${line}")
    list(LENGTH commas count)
    math(EXPR count "${count} + 1")
    set(${result} ${count} PARENT_SCOPE)
endfunction()
