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

# What users run ends where a mistake would otherwise be made use of. Sanitizers look for the same
# mistakes in ways of their own, and without optimisation there is nothing to fortify.
set(TESSERA_HARDENED OFF)
if(NOT TESSERA_SANITIZE AND CMAKE_BUILD_TYPE MATCHES "^(Release|RelWithDebInfo|MinSizeRel)$")
    set(TESSERA_HARDENED ON)
    include(CheckCXXCompilerFlag)
    include(CheckPIESupported)
    check_pie_supported(LANGUAGES CXX)
    set(CMAKE_POSITION_INDEPENDENT_CODE ON)
    # Nobody takes the place of our functions, so they may still be inlined.
    target_compile_options(tessera_options INTERFACE -fno-semantic-interposition)
    # Returns and jumps are protected on the processors that can.
    foreach(flag stack-protector-strong stack-clash-protection cf-protection)
        check_cxx_compiler_flag(-f${flag} TESSERA_HAS_${flag})
        if(TESSERA_HAS_${flag})
            target_compile_options(tessera_options INTERFACE -f${flag})
        endif()
    endforeach()
    # Where it means nothing Clang takes it too, and complains.
    if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(aarch64|arm64)$")
        target_compile_options(tessera_options INTERFACE -mbranch-protection=standard)
    endif()
    # Distributions that fortify by themselves may have chosen another level.
    target_compile_options(tessera_options INTERFACE -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
    target_compile_definitions(tessera_options INTERFACE _GLIBCXX_ASSERTIONS)
    target_link_options(tessera_options INTERFACE -Wl,-z,relro,-z,now,-z,noexecstack)
endif()

if(TESSERA_SANITIZE)
    target_compile_options(
        tessera_options INTERFACE -fsanitize=${TESSERA_SANITIZE} -fno-omit-frame-pointer
                                  -fno-sanitize-recover=all)
    # The instrumented code hides from GCC what is initialised and how long a text is; its manual
    # warns of false warnings. The builds without a sanitizer warn of all three.
    target_compile_options(
        tessera_options INTERFACE -Wno-maybe-uninitialized -Wno-array-bounds -Wno-stringop-overflow)
    target_link_options(tessera_options INTERFACE -fsanitize=${TESSERA_SANITIZE})
    # One allocation a node lets the sanitizers see each node's end of life.
    target_compile_definitions(tessera_options INTERFACE TESSERA_SEPARATE_NODES)
    # Their tables take more addresses than a process with little memory has.
    target_compile_definitions(tessera_options INTERFACE TESSERA_SANITIZED)
endif()
