# Fails when a source of one layer includes a header of the project that neither the layer itself
# nor a layer below it lists among its sources.
#
#   cmake -Droot=FOLDER "-Dlayer=SOURCE;..." "-Dbelow=SOURCE;..." -P checkIncludes.cmake
cmake_minimum_required(VERSION 3.25)

set(checked 0)
foreach(source IN LISTS layer)
    if(NOT source MATCHES "^${root}/.*[.](cpp|h)$")
        continue()
    endif()
    math(EXPR checked "${checked} + 1")
    file(STRINGS "${source}" lines REGEX "^[ \t]*#[ \t]*include[ \t]*\"")
    foreach(line IN LISTS lines)
        string(REGEX REPLACE "^[^\"]*\"([^\"]*)\".*" "\\1" header "${line}")
        # What the build generates from the layer's own files is found in no source folder.
        if(NOT EXISTS "${root}/${header}")
            continue()
        endif()
        if(NOT "${root}/${header}" IN_LIST layer AND NOT "${root}/${header}" IN_LIST below)
            message(SEND_ERROR "${source} includes \"${header}\", which is not of its layer or one "
                               "below (or is missing from target_sources).")
        endif()
    endforeach()
endforeach()
if(checked EQUAL 0)
    message(SEND_ERROR "No source of the layer was found under ${root}.")
endif()
