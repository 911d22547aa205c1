# Installs a build into an empty folder and checks what is there and that the program runs.
#   cmake -D BUILD=... -D PREFIX=... -D DESKTOP_FILE_VALIDATE=... -P checkInstallation.cmake
file(REMOVE_RECURSE "${PREFIX}")

# The list of what the user installed from the build says what there is to uninstall, and may be
# root's. An installation of one component, which all is part of, writes a list of its own.
function(read_manifest variable)
    set(text "none\n")
    if(EXISTS "${BUILD}/install_manifest.txt")
        file(READ "${BUILD}/install_manifest.txt" text)
    endif()
    set(${variable} "${text}" PARENT_SCOPE)
endfunction()

read_manifest(manifest_before)
execute_process(
    COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --prefix "${PREFIX}" --component Unspecified
            OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
read_manifest(manifest)
if(NOT manifest STREQUAL manifest_before)
    message(FATAL_ERROR "What was installed before is forgotten; the list says: ${manifest}")
endif()

set(expected
    bin/tessera
    bin/tessera-ditto
    libexec/tessera/tessera-preview
    share/Thunar/sendto/tessera-sendto.desktop
    share/applications/tessera.desktop
    share/caja-python/extensions/tessera-caja.py
    share/doc/tessera/LICENSE
    share/file-manager/actions/tessera-action.desktop
    share/icons/hicolor/scalable/apps/tessera.svg
    share/kio/servicemenus/tessera-servicemenu.desktop
    share/nautilus-python/extensions/tessera-nautilus.py
    share/nemo/actions/tessera.nemo_action
    share/tessera/help/de/faq.html
    share/tessera/help/de/features.html
    share/tessera/help/faq.html
    share/tessera/help/features.html
    share/tessera/help/help.css)
list(
    APPEND
    expected
    share/bash-completion/completions/tessera
    share/bash-completion/completions/tessera-ditto
    share/fish/vendor_completions.d/tessera-ditto.fish
    share/fish/vendor_completions.d/tessera.fish
    share/icons/hicolor/symbolic/apps/tessera-symbolic.svg
    share/man/man1/tessera-ditto.1
    share/man/man1/tessera.1
    share/metainfo/org.example.tessera.metainfo.xml
    share/zsh/site-functions/_tessera)
foreach(size 16 22 24 32 48 64 128 256 512)
    list(APPEND expected "share/icons/hicolor/${size}x${size}/apps/tessera.png")
endforeach()
file(GLOB_RECURSE installed RELATIVE "${PREFIX}" "${PREFIX}/*")
list(SORT expected)
list(SORT installed)
if(NOT installed STREQUAL expected)
    message(FATAL_ERROR "Installed: ${installed}\nExpected: ${expected}")
endif()

foreach(page features faq de/features de/faq)
    set(file "${PREFIX}/share/tessera/help/${page}.html")
    cmake_path(GET file PARENT_PATH folder)
    file(READ "${file}" text)
    string(REGEX MATCHALL "(href|src)=\"[^\"]*\"" links "${text}")
    foreach(link IN LISTS links)
        string(REGEX REPLACE "^[a-z]+=\"([^\"]*)\"$" "\\1" target "${link}")
        if(NOT EXISTS "${folder}/${target}")
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

# A picture of four pixels is answered by a frame with its size, one with the raster's, the pixels,
# and one for the end. The previewer writes to no file, hence the pipe.
file(WRITE "${PREFIX}/picture" "P1 2 2 0 1 1 0\n")
execute_process(
    COMMAND "${PREFIX}/libexec/tessera/tessera-preview" picture 100 100
    COMMAND cat
    INPUT_FILE "${PREFIX}/picture"
    OUTPUT_FILE "${PREFIX}/answer" COMMAND_ERROR_IS_FATAL ANY)
file(SIZE "${PREFIX}/answer" answer_bytes)
if(NOT answer_bytes EQUAL 64)
    message(FATAL_ERROR "The installed previewer answers by ${answer_bytes} bytes")
endif()

# What decodes strangers' documents is no part of the program itself, nor is what speaks to others.
file(
    GET_RUNTIME_DEPENDENCIES
    EXECUTABLES "${PREFIX}/bin/tessera"
    RESOLVED_DEPENDENCIES_VAR libraries
    UNRESOLVED_DEPENDENCIES_VAR missing)
if(NOT libraries MATCHES "Qt6Gui" OR libraries MATCHES "Qt6Pdf|Qt6Network|libcurl|libsoup")
    message(FATAL_ERROR "The installed program uses ${libraries}")
endif()
file(REMOVE_RECURSE "${PREFIX}")
