# labelport_room(NAME SOURCES ... LINK ...)
#
# A room of the house: an object library `labelport_NAME` of the folder NAME.
# Object libraries, because a room's compiled-in resources and static tables
# must reach the shared library whole, and because tests link one room alone.
function(labelport_room name)
    cmake_parse_arguments(ROOM "" "" "SOURCES;LINK" ${ARGN})
    add_library(labelport_${name} OBJECT ${ROOM_SOURCES})
    target_include_directories(labelport_${name} PUBLIC
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}>
        $<BUILD_INTERFACE:${PROJECT_BINARY_DIR}/generated>)
    target_compile_definitions(labelport_${name} PRIVATE labelport_EXPORTS)
    target_link_libraries(labelport_${name} PUBLIC ${ROOM_LINK})
endfunction()
