# What desktops and shells want to know of the program beside its desktop entry.
install(FILES org.example.tessera.metainfo.xml
        DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/metainfo")

# The icon in the sizes of hicolor, which other themes fall back to; the scalable one is the
# program's own.
set(icons "${CMAKE_INSTALL_DATAROOTDIR}/icons/hicolor")
foreach(size 16 22 24 32 48 64 128 256 512)
    install(
        FILES "icons/tessera-${size}.png"
        DESTINATION "${icons}/${size}x${size}/apps"
        RENAME tessera.png)
endforeach()
install(FILES icons/tessera-symbolic.svg DESTINATION "${icons}/symbolic/apps")

foreach(program tessera tessera-ditto)
    install(
        FILES "completions/${program}.bash"
        DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/bash-completion/completions"
        RENAME "${program}")
    install(FILES "completions/${program}.fish"
            DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/fish/vendor_completions.d")
endforeach()
# Debian's zsh looks elsewhere for what packages bring than for what the administrator installs.
set(zsh_functions "${CMAKE_INSTALL_DATAROOTDIR}/zsh/site-functions")
if(CMAKE_INSTALL_PREFIX STREQUAL "/usr" AND EXISTS /etc/debian_version)
    set(zsh_functions "${CMAKE_INSTALL_DATAROOTDIR}/zsh/vendor-completions")
endif()
install(FILES completions/_tessera DESTINATION "${zsh_functions}")
