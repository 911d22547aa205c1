# What users run is compiled a folder at a time: the headers that a folder's sources share are read
# once, and what they make of templates is made once. That more than halves the work of a first
# build; whoever changes a source and builds again is quicker with the other presets, which compile
# each source by itself. It asks of the sources that the names in the unnamed namespaces of one
# folder differ, which this build checks.

option(TESSERA_UNITY_BUILD "Compile the sources of a folder together" OFF)

# To be called when the target has all its sources.
function(tessera_unite_folders target)
    if(NOT TESSERA_UNITY_BUILD)
        return()
    endif()
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
    get_target_property(sources ${target} SOURCES)
    foreach(source IN LISTS sources)
        cmake_path(GET source PARENT_PATH folder)
        cmake_path(RELATIVE_PATH folder BASE_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}")
        string(MAKE_C_IDENTIFIER "${folder}" group)
        set_source_files_properties(
            "${source}" TARGET_DIRECTORY ${target} PROPERTIES UNITY_GROUP "${group}")
    endforeach()
endfunction()
