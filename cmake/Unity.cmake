# Most of the time of a build goes into headers that every file includes; so files of a target are
# compiled several at a time, as one.  Which go together, tools/sources_together.py finds out, anew
# when one of them has changed.  TNT_UNITY=OFF compiles each file by itself: so does clang, which thereby
# finds a file that does not include what it needs.
if(TNT_UNITY)
    find_package(Python3 REQUIRED COMPONENTS Interpreter)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
        ${CMAKE_SOURCE_DIR}/tools/sources_together.py)
endif()

# most: how many files are compiled as one, at most.
function(tnt_unity target most)
    if(NOT TNT_UNITY)
        return()
    endif()
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "^${CMAKE_SOURCE_DIR}/.*\\.cpp$")
    execute_process(COMMAND ${Python3_EXECUTABLE} ${CMAKE_SOURCE_DIR}/tools/sources_together.py
        ${most} ${sources} OUTPUT_VARIABLE groups COMMAND_ERROR_IS_FATAL ANY)
    foreach(source group IN ZIP_LISTS sources groups)
        set_source_files_properties(${source} PROPERTIES UNITY_GROUP ${target}_${group})
    endforeach()
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # It takes a file that is compiled with others for a header, which has no names for itself.
        target_compile_options(${target} PRIVATE -Wno-subobject-linkage)
    endif()
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${sources})
endfunction()
