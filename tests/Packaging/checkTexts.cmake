# Fails when a text that users see would not reach the translators, whose files lupdate makes.
#   cmake -D LUPDATE=... -D SOURCES=FOLDER -D RESULT=FILE.ts "-D TEXTS=TEXT;..." -P checkTexts.cmake
cmake_minimum_required(VERSION 3.25)

file(REMOVE "${RESULT}")
execute_process(
    COMMAND "${LUPDATE}" "${SOURCES}" -I "${SOURCES}" -ts "${RESULT}"
    OUTPUT_QUIET
    ERROR_VARIABLE warnings COMMAND_ERROR_IS_FATAL ANY)
if(warnings)
    message(SEND_ERROR "lupdate warns:\n${warnings}")
endif()
file(READ "${RESULT}" found)
foreach(text IN LISTS TEXTS)
    string(FIND "${found}" "<source>${text}</source>" position)
    if(position EQUAL -1)
        message(SEND_ERROR "lupdate does not find: ${text}")
    endif()
endforeach()

# lupdate passes over what is no text, without a warning.
file(GLOB_RECURSE sources "${SOURCES}/*.cpp" "${SOURCES}/*.h")
foreach(source IN LISTS sources)
    file(READ "${source}" code)
    if(code MATCHES "[^A-Za-z0-9_](tr\\([ \n]*[^\" \n][^\n]*)")
        message(SEND_ERROR "${source} translates what is no text: ${CMAKE_MATCH_1}")
    endif()
endforeach()
