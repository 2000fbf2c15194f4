# What `cmake --install` puts where: the library, its public headers, and the files by which CMake and
# pkg-config find both. All of it may be moved to another prefix afterwards. Components: "library" is what
# a built host needs to run, "development" what it takes to build one, "tool" the program.
include(CMakePackageConfigHelpers)

install(TARGETS staadkit EXPORT staadkit_targets
    ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT development
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT library NAMELINK_COMPONENT development
    RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT library)

foreach(header IN LISTS staadkit_public_headers)
    cmake_path(GET header PARENT_PATH folder)
    install(FILES "${PROJECT_SOURCE_DIR}/staad/${header}" COMPONENT development
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/staad/${folder}")
endforeach()

# find_package(staadkit CONFIG) gives the target staadkit::staadkit.
set(staadkit_package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/staadkit")
install(EXPORT staadkit_targets NAMESPACE staadkit:: FILE staadkit-targets.cmake
    DESTINATION "${staadkit_package_dir}" COMPONENT development)
configure_package_config_file("${CMAKE_CURRENT_LIST_DIR}/staadkit-config.cmake.in"
    "${PROJECT_BINARY_DIR}/staadkit-config.cmake" INSTALL_DESTINATION "${staadkit_package_dir}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/staadkit-config-version.cmake"
    COMPATIBILITY ${STAADKIT_COMPATIBILITY})
install(FILES "${PROJECT_BINARY_DIR}/staadkit-config.cmake" "${PROJECT_BINARY_DIR}/staadkit-config-version.cmake"
    DESTINATION "${staadkit_package_dir}" COMPONENT development)

# pkg-config: `staadkit.pc`, which finds its prefix from where it lies itself.
set(staadkit_pc_dir "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}" OR IS_ABSOLUTE "${CMAKE_INSTALL_INCLUDEDIR}")
    set(staadkit_pc_prefix "${CMAKE_INSTALL_PREFIX}")
    set(staadkit_pc_libdir "${CMAKE_INSTALL_FULL_LIBDIR}")
    set(staadkit_pc_includedir "${CMAKE_INSTALL_FULL_INCLUDEDIR}")
else()
    cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}/${staadkit_pc_dir}"
        OUTPUT_VARIABLE staadkit_pc_up)
    set(staadkit_pc_prefix "\${pcfiledir}/${staadkit_pc_up}")
    set(staadkit_pc_libdir "\${prefix}/${CMAKE_INSTALL_LIBDIR}")
    set(staadkit_pc_includedir "\${prefix}/${CMAKE_INSTALL_INCLUDEDIR}")
endif()
set(staadkit_pc_cflags "")
set(staadkit_pc_private "")
if(NOT BUILD_SHARED_LIBS)
    set(staadkit_pc_cflags " -DSTAADKIT_STATIC")
    # What a host needs that does not link with a C++ compiler: the C++ runtime and the libraries below it.
    set(runtime ${CMAKE_CXX_IMPLICIT_LINK_LIBRARIES})
    list(FILTER runtime INCLUDE REGEX "^(stdc\\+\\+|c\\+\\+|c\\+\\+abi|m)$")
    list(REMOVE_DUPLICATES runtime)
    if(WIN32)
        list(APPEND runtime comdlg32 user32) # dialogs and message boxes
    endif()
    list(TRANSFORM runtime PREPEND "-l")
    list(JOIN runtime " " staadkit_pc_private)
endif()
configure_file("${CMAKE_CURRENT_LIST_DIR}/staadkit.pc.in" "${PROJECT_BINARY_DIR}/staadkit.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/staadkit.pc" DESTINATION "${staadkit_pc_dir}" COMPONENT development)
