# The three Debian packages: created from this build, unpacked into an empty folder, and used there.
include(${CMAKE_CURRENT_LIST_DIR}/package_steps.cmake)

file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK}/packages)
run(COMMAND ${CPACK} --config ${BUILD}/CPackConfig.cmake -G DEB -C ${CONFIG} -B ${WORK}/packages)

# package_of(name variable): the file of a package.
function(package_of name variable)
    file(GLOB found ${WORK}/packages/${name}_${VERSION}-*.deb)
    list(LENGTH found count)
    if(NOT count EQUAL 1)
        message(FATAL_ERROR "${count} files of the package ${name}")
    endif()
    set(${variable} ${found} PARENT_SCOPE)
endfunction()

# expect_field(package field pattern): checks a field of a package's control file.
function(expect_field package field pattern)
    run(OUTPUT value COMMAND dpkg-deb --field ${package} ${field})
    if(NOT value MATCHES "${pattern}")
        message(SEND_ERROR "${package}: ${field} is\n${value}")
    endif()
endfunction()

set(library_name liblabelport${SOVERSION})
package_of(${library_name} library)
package_of(liblabelport-dev development)
package_of(labelport programs)

# Each depends on the packages below it, and on the libraries that it links.
expect_field(${library} Depends "libqt6widgets6")
expect_field(${library} Depends "libqt6svg6")
expect_field(${development} Depends "${library_name} \\(= ${VERSION}-1\\).*qt6-base-dev")
expect_field(${programs} Depends "${library_name} \\(= ${VERSION}-1\\)")
expect_field(${programs} Depends "libqt6sql6-sqlite")
expect_field(${programs} Depends "libzint")
expect_field(${library} Description "^importer of legacy label templates .library.\n [A-Z]")
expect_field(${development} Description
    "^importer of legacy label templates .development files.\n [A-Z]")
expect_field(${programs} Description "^import legacy label templates, [a-z ]*\n [A-Z]")

# Debian's own checks. Tags about the origin of a package do not apply to one built in place.
execute_process(
    COMMAND ${LINTIAN} --allow-root --fail-on error,warning --tag-display-limit 0
        --suppress-tags initial-upload-closes-no-bugs ${library} ${development} ${programs}
    RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE errors)
if(NOT status EQUAL 0)
    message(SEND_ERROR "lintian ended with ${status}\n${output}\n${errors}")
endif()

set(root ${WORK}/root)
file(MAKE_DIRECTORY ${root})
foreach(package ${library} ${development} ${programs})
    run(COMMAND dpkg-deb --extract ${package} ${root})
endforeach()

# No file is in two packages, and each is in its expected folder.
run(OUTPUT library_files COMMAND dpkg-deb --contents ${library})
run(OUTPUT development_files COMMAND dpkg-deb --contents ${development})
run(OUTPUT programs_files COMMAND dpkg-deb --contents ${programs})
foreach(case
        "library|/usr/lib/[a-z0-9_]+-linux-gnu[a-z0-9]*/liblabelport\\.so\\.${SOVERSION} "
        "library|/liblabelport-logging\\.so\\.${SOVERSION} "
        "library|/labelport/translations/labelport_de\\.qm"
        "library|/doc/${library_name}/changelog\\.Debian\\.gz"
        "development|/liblabelport\\.so "
        "development|/LabelPortConfig\\.cmake"
        "development|/labelport\\.pc"
        "development|/host/class_factory\\.h"
        "programs|/usr/bin/labelport "
        "programs|/applications/labelport-workbench\\.desktop"
        "development|/doc/liblabelport-dev/host-guide\\.md"
        "programs|/doc/labelport/user-guide\\.md"
        "programs|/doc/labelport/workbench\\.md"
        "programs|/doc/labelport/migration-report\\.md"
        "programs|/doc/labelport/examples/tavrel/parcel_2000023\\.roc"
        "programs|/doc/labelport/copyright")
    string(REPLACE "|" ";" case "${case}")
    list(GET case 0 owner)
    list(GET case 1 pattern)
    foreach(package library development programs)
        string(REGEX MATCH "${pattern}" found "${${package}_files}")
        if(package STREQUAL owner AND NOT found)
            message(SEND_ERROR "${pattern} is not in the package of the ${owner}")
        elseif(NOT package STREQUAL owner AND found)
            message(SEND_ERROR "${pattern} is in the package of the ${package}")
        endif()
    endforeach()
endforeach()

# The packages' change log has an entry for this version.
file(STRINGS ${SOURCE}/packaging/debian/changelog first_line LIMIT_COUNT 1)
if(NOT first_line MATCHES "^labelport \\(${VERSION}-1\\) ")
    message(SEND_ERROR "packaging/debian/changelog begins with\n${first_line}")
endif()

# The programs run from there, and load the library from there.
run(OUTPUT libraries COMMAND ldd ${root}/usr/${PROGRAMDIR}/labelport)
if(NOT libraries MATCHES "liblabelport\\.so[^\n]* => ${root}/")
    message(SEND_ERROR "labelport takes another library:\n${libraries}")
endif()
run(OUTPUT version COMMAND ${root}/usr/bin/labelport --version)
if(NOT version STREQUAL "labelport ${VERSION}\n")
    message(SEND_ERROR "labelport says it is\n${version}")
endif()
# This label refers to a symbol by name only.
run(COMMAND ${root}/usr/bin/labelport import --output-dir ${WORK}/pictures
    ${SOURCE}/samples/tavrel/warning_sign_2000019.roc)
if(NOT EXISTS ${WORK}/pictures/warning_sign_2000019.png)
    message(SEND_ERROR "labelport made no picture")
endif()
run(OUTPUT trace COMMAND ${root}/usr/bin/labelport trace
    ${SOURCE}/samples/tavrel/warning_sign_2000019.roc)
if(NOT trace MATCHES "\"call\":\"completeCanvasLoading\"")
    message(SEND_ERROR "labelport trace did not import the label:\n${trace}")
endif()

# A host is built against the development package.
file(COPY ${SOURCE}/examples/embedding DESTINATION ${WORK})
run(COMMAND ${CMAKE_COMMAND} -S ${WORK}/embedding -B ${WORK}/build
    -D CMAKE_PREFIX_PATH=${root}/usr
    -D CMAKE_BUILD_TYPE=${CONFIG}
    -D CMAKE_CXX_COMPILER=${COMPILER}
    -D CMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}
    "-D CMAKE_CXX_FLAGS=${FLAGS}")
run(COMMAND ${CMAKE_COMMAND} --build ${WORK}/build)
try_example(${WORK}/build/embedding)
