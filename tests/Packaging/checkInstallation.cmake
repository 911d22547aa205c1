# Installs a build into an empty folder and checks what is there and that the program runs.
#   cmake -D BUILD=... -D PREFIX=... -D DESKTOP_FILE_VALIDATE=... -P checkInstallation.cmake
file(REMOVE_RECURSE "${PREFIX}")
execute_process(
    COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${PREFIX}" OUTPUT_QUIET
            COMMAND_ERROR_IS_FATAL ANY)

set(expected
    bin/tessera
    bin/tessera-ditto
    share/applications/tessera.desktop
    share/doc/tessera/LICENSE
    share/doc/tessera/help/faq.html
    share/doc/tessera/help/features.html
    share/doc/tessera/help/help.css
    share/icons/hicolor/scalable/apps/tessera.svg)
file(GLOB_RECURSE installed RELATIVE "${PREFIX}" "${PREFIX}/*")
list(SORT expected)
list(SORT installed)
if(NOT installed STREQUAL expected)
    message(FATAL_ERROR "Installed: ${installed}\nExpected: ${expected}")
endif()

foreach(page features faq)
    file(READ "${PREFIX}/share/doc/tessera/help/${page}.html" text)
    string(REGEX MATCHALL "(href|src)=\"[^\"]*\"" links "${text}")
    foreach(link IN LISTS links)
        string(REGEX REPLACE "^[a-z]+=\"([^\"]*)\"$" "\\1" target "${link}")
        if(NOT EXISTS "${PREFIX}/share/doc/tessera/help/${target}")
            message(FATAL_ERROR "${page}.html leads to ${target}, which is not there")
        endif()
    endforeach()
endforeach()

execute_process(
    COMMAND "${DESKTOP_FILE_VALIDATE}" "${PREFIX}/share/applications/tessera.desktop"
            COMMAND_ERROR_IS_FATAL ANY)
# Whoever claims folders becomes the program that opens them where the user has chosen none.
file(READ "${PREFIX}/share/applications/tessera.desktop" entry)
if(entry MATCHES "MimeType")
    message(FATAL_ERROR "The desktop entry claims types of files:\n${entry}")
endif()
if(NOT entry MATCHES "Exec=tessera %U")
    message(FATAL_ERROR "The desktop entry takes no folders:\n${entry}")
endif()
execute_process(
    COMMAND "${PREFIX}/bin/tessera" --version OUTPUT_VARIABLE version COMMAND_ERROR_IS_FATAL ANY)
if(NOT version MATCHES "^tessera [0-9]")
    message(FATAL_ERROR "The installed program says: ${version}")
endif()
file(REMOVE_RECURSE "${PREFIX}")
