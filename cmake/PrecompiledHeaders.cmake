# Headers that nearly every source of a target reads are parsed once for the target. They spare the
# compiler work and nothing else: each source includes what it uses, which the static analysis, that
# sees no precompiled header, checks.

option(TESSERA_PRECOMPILED_HEADERS "Parse the headers of Qt and GoogleTest once a target" ON)

set(precompiled_standard_headers
    <algorithm>
    <array>
    <cmath>
    <cstdint>
    <functional>
    <memory>
    <optional>
    <string>
    <string_view>
    <utility>
    <vector>)

set(precompiled_widget_headers
    <QApplication>
    <QIcon>
    <QImage>
    <QKeyEvent>
    <QLabel>
    <QMainWindow>
    <QMenu>
    <QPainter>
    <QPixmap>
    <QPointer>
    <QTimer>
    <QToolButton>
    <QVBoxLayout>)

function(tessera_precompile target)
    if(TESSERA_PRECOMPILED_HEADERS)
        target_precompile_headers(${target} PRIVATE ${precompiled_standard_headers} ${ARGN})
    endif()
endfunction()

# The compiler cache has to be told that a precompiled header decides what a source means.
if(TESSERA_PRECOMPILED_HEADERS AND CMAKE_CXX_COMPILER_LAUNCHER MATCHES "ccache$")
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros
        "${CMAKE_CXX_COMPILER_LAUNCHER}")
endif()
