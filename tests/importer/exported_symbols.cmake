# cmake -DNM=... -DREADELF=... -DLIBRARY=... -DSONAME=... -P exported_symbols.cmake
#
# Fails when the library defines a dynamic symbol that belongs to neither of the two
# classes that it is there for, or when it does not define their operations, or when programs
# that are linked with it would look for another name.
execute_process(
    COMMAND ${NM} --dynamic --defined-only --demangle ${LIBRARY}
    OUTPUT_VARIABLE listing
    COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "\n$" "" listing "${listing}")
string(REPLACE ";" "<semicolon>" listing "${listing}")
string(REPLACE "\n" ";" lines "${listing}")

set(strangers "")
foreach(line IN LISTS lines)
    string(REGEX REPLACE "^[0-9a-f]* +[A-Za-z] " "" symbol "${line}")
    # Newer binutils name the version behind the symbol.
    string(REGEX REPLACE "@@?[A-Za-z0-9_.]+$" "" symbol "${symbol}")
    if(NOT symbol MATCHES
            "^((vtable for |typeinfo for |typeinfo name for )?(LegacyTemplateImporter|LegacySupplyInfo))(::.*)?$")
        list(APPEND strangers "${symbol}")
    endif()
endforeach()
if(strangers)
    list(JOIN strangers "\n  " text)
    message(FATAL_ERROR "The library also shows:\n  ${text}")
endif()

foreach(wanted IN ITEMS
        "LegacyTemplateImporter::LegacyTemplateImporter("
        "LegacyTemplateImporter::~LegacyTemplateImporter("
        "LegacyTemplateImporter::importLegacyLabel("
        "LegacyTemplateImporter::importLabelFromTavrelFile("
        "LegacyTemplateImporter::importLabelFromOrvantaFile("
        "LegacyTemplateImporter::importLabelFromOpenOfficeFile("
        "LegacyTemplateImporter::popupShowSignal("
        "LegacyTemplateImporter::popupHideSignal("
        "LegacyTemplateImporter::staticMetaObject"
        "LegacySupplyInfo::")
    string(FIND "${listing}" "${wanted}" place)
    if(place EQUAL -1)
        message(FATAL_ERROR "The library does not export ${wanted}")
    endif()
endforeach()

execute_process(
    COMMAND ${READELF} --dynamic ${LIBRARY}
    OUTPUT_VARIABLE dynamic
    COMMAND_ERROR_IS_FATAL ANY)
if(NOT dynamic MATCHES "\\(SONAME\\)[^\n]*\\[${SONAME}\\]")
    message(FATAL_ERROR "The library is not known to programs as ${SONAME}:\n${dynamic}")
endif()
