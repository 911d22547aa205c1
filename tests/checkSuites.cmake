# Fails when a suite that is listed by its name, where a star stands for any letters, has no tests.
#   cmake "-Dfolder=FOLDER OF THE LISTS" "-Dsuites=SUITE;..." -P checkSuites.cmake
file(GLOB lists "${folder}/*_tests.cmake")
set(names "")
foreach(list IN LISTS lists)
    file(READ "${list}" text)
    string(APPEND names "${text}")
endforeach()
foreach(suite IN LISTS suites)
    string(REPLACE "*" "[A-Za-z0-9]*" pattern "${suite}")
    if(NOT names MATCHES "add_test\\([^\n.]*[^A-Za-z0-9]${pattern}[.]")
        message(SEND_ERROR "no test is of the suite ${suite}")
    endif()
endforeach()
