# Fails when a source outside Platform/ asks the preprocessor which system it is compiled for.
#
#   cmake -Droot=FOLDER -P checkSystems.cmake
cmake_minimum_required(VERSION 3.25)

string(CONCAT systems "__linux|__gnu_linux__|__unix|__APPLE__|__FreeBSD__|__NetBSD__|__OpenBSD__|"
              "__HAIKU__|__ANDROID__|_WIN32|_WIN64|__CYGWIN__|__MINGW32__|Q_OS_")
file(GLOB_RECURSE sources RELATIVE "${root}" "${root}/*.cpp" "${root}/*.h" "${root}/*.in")
list(FILTER sources EXCLUDE REGEX "^Platform/")
if(NOT sources)
    message(SEND_ERROR "No source was found under ${root}.")
endif()
foreach(source IN LISTS sources)
    file(STRINGS "${root}/${source}" lines REGEX "^[ \t]*#[ \t]*(if|elif).*(${systems})")
    foreach(line IN LISTS lines)
        message(SEND_ERROR "${source} asks for the system: ${line}")
    endforeach()
endforeach()
