# Builds that nobody edits in compile many sources as one file, which takes a fraction of the time.
option(MIREL_UNITY "Compile the sources of each target in groups" OFF)
set(MIREL_UNITY_SIZE 16 CACHE STRING "How many sources a group has at most")
if(MIREL_UNITY)
    find_package(Python3 REQUIRED COMPONENTS Interpreter)
    if(MINGW)
        add_compile_options(-Wa,-mbig-obj)  # A group has more sections than the usual format holds.
    endif()
endif()

# To be called once all sources of the target are there.
function(mirel_unity target)
    if(NOT MIREL_UNITY)
        return()
    endif()
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "\\.cpp$")
    list(TRANSFORM sources PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/ REGEX "^[^/]")
    list(SORT sources)
    list(JOIN sources "\n" lines)
    file(WRITE ${CMAKE_CURRENT_BINARY_DIR}/${target}-sources.txt "${lines}\n")
    execute_process(COMMAND ${Python3_EXECUTABLE} ${PROJECT_SOURCE_DIR}/tools/unity-groups ${MIREL_UNITY_SIZE}
                    INPUT_FILE ${CMAKE_CURRENT_BINARY_DIR}/${target}-sources.txt
                    OUTPUT_VARIABLE groups OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
    string(REPLACE "\n" ";" groups "${groups}")
    foreach(line ${groups})
        string(REGEX MATCH "^([0-9]+) (.*)$" line ${line})
        set_source_files_properties(${CMAKE_MATCH_2} PROPERTIES UNITY_GROUP ${CMAKE_MATCH_1})
    endforeach()
endfunction()
