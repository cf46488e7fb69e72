# Run by CPack on the package folders: Debian requires compressed change logs and manual pages,
# without a time stamp, so that the same build makes the same package.
file(GLOB_RECURSE documents ${CPACK_TEMPORARY_DIRECTORY}/*)
list(FILTER documents INCLUDE REGEX "/share/(doc/[^/]+/changelog(.Debian)?|man/.*\\.[1-9])$")
foreach(document IN LISTS documents)
    execute_process(COMMAND gzip -9 -n ${document} COMMAND_ERROR_IS_FATAL ANY)
endforeach()
