# SPDX-License-Identifier: MIT
# The manual pages are what the programs print by --help, with the sections of docs/man/ around it:
# an option stands in one place. Made by help2man, which only starts the programs for that.
find_program(HELP2MAN help2man)
if(NOT HELP2MAN)
    message(STATUS "help2man is missing: there will be no manual pages")
    return()
elseif(CMAKE_CROSSCOMPILING)
    message(STATUS "The programs do not run here: there will be no manual pages")
    return()
endif()

# A page is as old as the release: the same sources make the same page on any day.
file(STRINGS "${PROJECT_SOURCE_DIR}/CHANGELOG.md" releases REGEX "^## \\[[0-9.]+\\] - ")
list(GET releases 0 newest)
string(REGEX REPLACE ".* - " "" release_date "${newest}")
execute_process(
    COMMAND date --utc "--date=${release_date}" +%s
    OUTPUT_VARIABLE release_time
    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)

set(pages "")
foreach(program tessera tessera-ditto)
    set(page "${CMAKE_CURRENT_BINARY_DIR}/${program}.1")
    set(sections "${PROJECT_SOURCE_DIR}/docs/man/${program}.h2m")
    add_custom_command(
        OUTPUT "${page}"
        COMMAND
            "${CMAKE_COMMAND}" -E env "SOURCE_DATE_EPOCH=${release_time}" TZ=UTC "${HELP2MAN}" --no-info
            --section=1 "--manual=User Commands" "--source=Tessera ${PROJECT_VERSION}"
            "--include=${sections}" "--output=${page}" "$<TARGET_FILE:${program}>"
        DEPENDS ${program} "${sections}"
        COMMENT "Making the manual page ${program}.1"
        VERBATIM)
    list(APPEND pages "${page}")
endforeach()
add_custom_target(tessera_man ALL DEPENDS ${pages})
install(FILES ${pages} DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
