# Makes the catalogues of the languages in translations/languages.txt and builds them into a target
# as resources below ":/translations". To be called where the target was made. lupdate is never run
# by the build: scripts/translations does that, and what it changes is committed.

set_property(
    DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
                              "${PROJECT_SOURCE_DIR}/translations/languages.txt")
file(STRINGS "${PROJECT_SOURCE_DIR}/translations/languages.txt" lines REGEX "^[^#]")
set(TESSERA_LANGUAGES)
foreach(line IN LISTS lines)
    string(REGEX REPLACE " .*" "" language "${line}")
    list(APPEND TESSERA_LANGUAGES "${language}")
endforeach()

function(tessera_add_translations target)
    set(folder "${CMAKE_CURRENT_BINARY_DIR}/translations")
    set(catalogues)
    set(entries)
    foreach(language IN LISTS TESSERA_LANGUAGES)
        set(texts "${PROJECT_SOURCE_DIR}/translations/tessera_${language}.ts")
        set(catalogue "${folder}/tessera_${language}.qm")
        add_custom_command(
            OUTPUT "${catalogue}"
            COMMAND Qt6::lrelease -silent "${texts}" -qm "${catalogue}"
            DEPENDS "${texts}"
            VERBATIM)
        list(APPEND catalogues "${catalogue}")
        string(APPEND entries "  <file>tessera_${language}.qm</file>\n")
    endforeach()
    file(CONFIGURE OUTPUT "${folder}/translations.qrc" CONTENT
         "<RCC>\n <qresource prefix=\"/translations\">\n@entries@ </qresource>\n</RCC>\n" @ONLY)
    set(code "${folder}/translations.cpp")
    add_custom_command(
        OUTPUT "${code}"
        COMMAND Qt6::rcc --name translations --output "${code}" "${folder}/translations.qrc"
        DEPENDS "${folder}/translations.qrc" ${catalogues}
        VERBATIM)
    target_sources(${target} PRIVATE "${code}")
    set_source_files_properties(
        "${code}" PROPERTIES SKIP_AUTOGEN ON SKIP_UNITY_BUILD_INCLUSION ON
                             SKIP_PRECOMPILE_HEADERS ON)
endfunction()
