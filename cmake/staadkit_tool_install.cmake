# What `cmake --install` puts beside the library if the tool is built.
install(TARGETS staadkit_tool RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT tool)

# The notices of what others wrote and the tool contains, where they are at hand.
set(staadkit_notices "")
foreach(package IN ITEMS libcli11-dev libfmt-dev nlohmann-json3-dev)
    if(EXISTS "/usr/share/doc/${package}/copyright")
        file(READ "/usr/share/doc/${package}/copyright" notice)
        string(APPEND staadkit_notices "The program staadkit contains parts of this work:\n\n${notice}\n")
    endif()
endforeach()
if(staadkit_notices)
    file(WRITE "${CMAKE_CURRENT_BINARY_DIR}/NOTICES.txt" "${staadkit_notices}")
    install(FILES "${CMAKE_CURRENT_BINARY_DIR}/NOTICES.txt" DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/staadkit"
        COMPONENT tool)
endif()

# The manual page and the completions: files, which scripts/refresh-pages.sh makes from the command line of the tool.
set(STAADKIT_ZSH_COMPLETIONS_DIR "${CMAKE_INSTALL_DATADIR}/zsh/site-functions"
    CACHE STRING "Where completions for zsh are installed")
if(UNIX)
    set(share "${PROJECT_SOURCE_DIR}/share")
    install(FILES "${share}/man/man1/staadkit.1" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT tool)
    install(FILES "${share}/bash-completion/completions/staadkit"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" COMPONENT tool)
    install(FILES "${share}/zsh/site-functions/_staadkit" DESTINATION "${STAADKIT_ZSH_COMPLETIONS_DIR}" COMPONENT tool)
    install(FILES "${share}/fish/vendor_completions.d/staadkit.fish"
        DESTINATION "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d" COMPONENT tool)
endif()
