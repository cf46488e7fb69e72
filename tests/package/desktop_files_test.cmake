# A desktop finds the window program, its icon, and its file types: the files are valid, are
# installed in the standard folders, and refer to each other correctly.
include(${CMAKE_CURRENT_LIST_DIR}/package_steps.cmake)

set(prefix ${WORK}/prefix)
install_to(${prefix} programs)
set(data ${prefix}/${DATADIR})

run(COMMAND desktop-file-validate ${data}/applications/labelport-workbench.desktop)
run(COMMAND appstreamcli validate --no-net ${data}/metainfo/org.labelport.Workbench.metainfo.xml)

file(READ ${data}/applications/labelport-workbench.desktop desktop)
string(REGEX MATCH "\nIcon=([^\n]+)" icon "${desktop}")
if(NOT EXISTS ${data}/icons/hicolor/scalable/apps/${CMAKE_MATCH_1}.svg)
    message(SEND_ERROR "the icon ${CMAKE_MATCH_1} is not installed")
endif()
string(REGEX MATCH "\nTryExec=([^\n]+)" program "${desktop}")
if(NOT EXISTS ${prefix}/${BINDIR}/${CMAKE_MATCH_1})
    message(SEND_ERROR "the program ${CMAKE_MATCH_1} is not installed")
endif()

# Each registered file type opens in the program and has an icon.
file(READ ${data}/mime/packages/labelport.xml kinds)
string(REGEX MATCHALL "<mime-type type=\"[^\"]+\"" types "${kinds}")
list(LENGTH types count)
if(NOT count EQUAL 3)
    message(SEND_ERROR "${count} kinds of file instead of 3")
endif()
foreach(type IN LISTS types)
    string(REGEX REPLACE ".*\"([^\"]+)\"" "\\1" type "${type}")
    string(FIND "${desktop}" "${type};" at)
    if(at EQUAL -1)
        message(SEND_ERROR "the program does not open ${type}")
    endif()
endforeach()
string(REGEX MATCHALL "<icon name=\"[^\"]+\"" icons "${kinds}")
foreach(icon IN LISTS icons)
    string(REGEX REPLACE ".*\"([^\"]+)\"" "\\1" icon "${icon}")
    if(NOT EXISTS ${data}/icons/hicolor/scalable/mimetypes/${icon}.svg)
        message(SEND_ERROR "the icon ${icon} is not installed")
    endif()
endforeach()

# The newest release in the metainfo file is this version.
file(READ ${data}/metainfo/org.labelport.Workbench.metainfo.xml metainfo)
string(REGEX MATCH "<release version=\"([^\"]+)\"" release "${metainfo}")
if(NOT CMAKE_MATCH_1 STREQUAL VERSION)
    message(SEND_ERROR "the newest release is ${CMAKE_MATCH_1}, not ${VERSION}")
endif()

run(COMMAND update-mime-database ${data}/mime)
