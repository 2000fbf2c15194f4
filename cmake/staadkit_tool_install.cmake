# What `cmake --install` puts beside the library if the tool is built.
install(TARGETS staadkit_tool RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT tool)

# The notices of what others wrote and the tool contains lie beside it, where they are at hand.
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

# The manual page and the completions come from the tool itself, where it runs and has a use for them.
set(STAADKIT_ZSH_COMPLETIONS_DIR "${CMAKE_INSTALL_DATADIR}/zsh/site-functions"
    CACHE STRING "Where completions for zsh are installed")
if(UNIX AND NOT CMAKE_CROSSCOMPILING)
    set(staadkit_pages)
    function(staadkit_page name file destination)
        set(page "${CMAKE_CURRENT_BINARY_DIR}/pages/${file}")
        add_custom_command(OUTPUT "${page}" DEPENDS staadkit_tool COMMENT "Printing ${file}" VERBATIM
            COMMAND "${CMAKE_COMMAND}" -DPROGRAM=$<TARGET_FILE:staadkit_tool> -DPAGE=${name} "-DFILE=${page}"
                -P "${PROJECT_SOURCE_DIR}/cmake/print_page.cmake")
        install(FILES "${page}" DESTINATION "${destination}" COMPONENT tool)
        set(staadkit_pages ${staadkit_pages} "${page}" PARENT_SCOPE)
    endfunction()
    staadkit_page(man staadkit.1 "${CMAKE_INSTALL_MANDIR}/man1")
    staadkit_page(bash staadkit "${CMAKE_INSTALL_DATADIR}/bash-completion/completions")
    staadkit_page(zsh _staadkit "${STAADKIT_ZSH_COMPLETIONS_DIR}")
    staadkit_page(fish staadkit.fish "${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d")
    add_custom_target(staadkit_pages ALL DEPENDS ${staadkit_pages})
endif()
