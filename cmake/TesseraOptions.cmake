# What every target of the project is compiled with. Nothing here is global: a target takes part
# by linking tessera_options privately.

option(TESSERA_WARNINGS_AS_ERRORS "Stop at the first warning (for developers and CI)" OFF)
set(TESSERA_SANITIZE "" CACHE STRING "Sanitizers to build with: address,undefined or thread")

set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}" CACHE STRING "Compiler cache")
endif()

add_library(tessera_options INTERFACE)
target_compile_features(tessera_options INTERFACE cxx_std_20)
target_compile_options(
    tessera_options
    INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast
              $<$<BOOL:${TESSERA_WARNINGS_AS_ERRORS}>:-Werror>)
# Optimising, GCC 12 sees overlapping copies where std::string joins texts (GCC bug 105651).
target_compile_options(
    tessera_options INTERFACE $<$<AND:$<CXX_COMPILER_ID:GNU>,$<CONFIG:Release>>:-Wno-restrict>)
target_compile_definitions(tessera_options INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_FOREACH)

if(TESSERA_SANITIZE)
    target_compile_options(
        tessera_options INTERFACE -fsanitize=${TESSERA_SANITIZE} -fno-omit-frame-pointer
                                  -fno-sanitize-recover=all)
    # The instrumented code hides from GCC what is initialised; its manual warns of false warnings.
    target_compile_options(tessera_options INTERFACE -Wno-maybe-uninitialized)
    target_link_options(tessera_options INTERFACE -fsanitize=${TESSERA_SANITIZE})
    # One allocation a node lets the sanitizers see each node's end of life.
    target_compile_definitions(tessera_options INTERFACE TESSERA_SEPARATE_NODES)
endif()
