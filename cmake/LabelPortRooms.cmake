# labelport_room(NAME [STATIC] [CORE] [MOC] SOURCES ... [LINK ...])
#
# A room of the house: the target `labelport_NAME`, made from the current folder. Its headers are
# included by their path below the house, `tavrel/legacy_tavrel.h` for library/tavrel/.
#
# A target finds the headers of the rooms that it links, and no others: each room has an include
# folder of its own, with a link to its sources. The compiler therefore checks the direction of the
# dependencies.
#
# Rooms are object libraries unless STATIC is given: compiled-in resources, static tables and the
# host's link-time services must be in the program even if nothing refers to them. CORE: the room
# does not use Qt Widgets. MOC: the room has a class with Q_OBJECT; without such a class, Qt's
# meta-object compiler would cost each target two build steps for nothing.
function(labelport_room name)
    cmake_parse_arguments(ROOM "STATIC;CORE;MOC" "" "SOURCES;LINK" ${ARGN})
    set(kind OBJECT)
    if(ROOM_STATIC)
        set(kind STATIC)
    endif()
    add_library(labelport_${name} ${kind} ${ROOM_SOURCES})
    set_target_properties(labelport_${name} PROPERTIES AUTOMOC ${ROOM_MOC})
    labelport_room_headers(labelport_${name} PUBLIC)
    target_link_libraries(labelport_${name} PUBLIC ${ROOM_LINK})
    if(ROOM_CORE)
        labelport_precompile(labelport_${name} core)
    else()
        labelport_precompile(labelport_${name} widgets)
    endif()
endfunction()

# labelport_room_headers(TARGET PUBLIC|INTERFACE)
#
# Lets TARGET, and what links it, find the headers of the current folder.
function(labelport_room_headers target scope)
    cmake_path(RELATIVE_PATH CMAKE_CURRENT_SOURCE_DIR
        BASE_DIRECTORY ${PROJECT_SOURCE_DIR} OUTPUT_VARIABLE below_root)
    string(REGEX REPLACE "^[^/]+/(.+)$" "\\1" below_house ${below_root})
    set(include_folder ${PROJECT_BINARY_DIR}/rooms/${target})
    cmake_path(GET below_house PARENT_PATH parent)
    file(MAKE_DIRECTORY ${include_folder}/${parent})
    file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${include_folder}/${below_house} SYMBOLIC)
    target_include_directories(${target} ${scope} $<BUILD_INTERFACE:${include_folder}>)
endfunction()
