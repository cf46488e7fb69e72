# Unity builds: the compiler takes several sources of a target as one, so that the templates and
# inlined functions of Qt that they share are compiled and optimized once, not once for each source.
# ./run and ./test build so; developers do not, because a change of one source compiles a whole batch.
#
# Names in unnamed namespaces must therefore differ between the sources of a target.

if(LABELPORT_UNITY)
    set(CMAKE_UNITY_BUILD ON)
    # Larger batches save little, and one that is last leaves the other processor cores idle.
    set(CMAKE_UNITY_BUILD_BATCH_SIZE 12)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # A class of a source may have members of types in an unnamed namespace, but not one of a
        # header, and the compiler takes each source of a batch for a header.
        add_compile_options(-Wno-subobject-linkage)
    endif()
endif()
