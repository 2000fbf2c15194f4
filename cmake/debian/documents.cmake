# Run by cpack when all files of a package are in place: adds to DEBs what Debian asks of each, and gives
# documentation the form that Debian has it in. Other packages are left as they are.
if(NOT CPACK_GENERATOR STREQUAL "DEB")
    return()
endif()
cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH source_dir)
cmake_path(GET source_dir PARENT_PATH source_dir)

# Without name and time in its head, so that the same file gives the same bytes.
function(compress file)
    execute_process(COMMAND gzip -9nf "${file}" COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# The date is the one of the sources where the environment gives it.
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
string(TIMESTAMP year "%Y" UTC)
set(version "${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}")
set(rights "Copyright (C) ${year} the staadkit developers. All rights reserved.\n")
if(EXISTS "${source_dir}/LICENSE")
    file(READ "${source_dir}/LICENSE" rights)
endif()

foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    set(root "${CPACK_TEMPORARY_DIRECTORY}/${component}/usr")
    string(TOUPPER "${component}" upper)
    set(package "${CPACK_DEBIAN_${upper}_PACKAGE_NAME}")
    set(documents "${root}/share/doc/${package}")

    file(WRITE "${documents}/changelog.Debian" "staadkit (${version}) unstable; urgency=medium\n\n"
        "  * Version ${CPACK_PACKAGE_VERSION}; changelog.gz says what is new.\n\n -- ${CPACK_PACKAGE_CONTACT}  ${date}\n")
    compress("${documents}/changelog.Debian")
    configure_file("${source_dir}/CHANGELOG.md" "${documents}/changelog" COPYONLY)
    compress("${documents}/changelog")

    set(copyright "${rights}")
    file(GLOB notices "${documents}/NOTICES.txt")
    foreach(file IN LISTS notices)
        file(READ "${file}" text)
        string(APPEND copyright "\n${text}")
        file(REMOVE "${file}")
    endforeach()
    file(WRITE "${documents}/copyright" "${copyright}")

    set(overrides "")
    foreach(file IN ITEMS lintian-overrides ${component}.lintian-overrides)
        if(EXISTS "${CMAKE_CURRENT_LIST_DIR}/${file}")
            file(READ "${CMAKE_CURRENT_LIST_DIR}/${file}" text)
            string(APPEND overrides "${text}")
        endif()
    endforeach()
    file(WRITE "${root}/share/lintian/overrides/${package}" "${overrides}")
    file(GLOB pages "${root}/share/man/man*/*.[1-9]")
    foreach(page IN LISTS pages)
        compress("${page}")
    endforeach()
endforeach()
