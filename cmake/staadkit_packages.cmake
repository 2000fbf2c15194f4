# What `cpack` makes: DEBs of the library, its development files and the tool, or one archive with all of
# them. scripts/make-packages.sh makes every package with the settings that belong to it.
set(CPACK_PACKAGE_NAME staadkit)
set(CPACK_PACKAGE_VENDOR "staadkit developers")
set(CPACK_PACKAGE_CONTACT "staadkit developers <staadkit@localhost>" CACHE STRING "Maintainer of the packages")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own
set(CPACK_PACKAGE_DIRECTORY "${PROJECT_SOURCE_DIR}/build/packages")
set(CPACK_COMPONENTS_ALL library development)
if(STAADKIT_BUILD_TOOL)
    list(APPEND CPACK_COMPONENTS_ALL tool)
endif()
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)

# Archives: one with everything, below a folder of its name.
string(TOLOWER "${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR}" CPACK_SYSTEM_NAME)
set(CPACK_GENERATOR TGZ)
if(WIN32)
    set(CPACK_GENERATOR ZIP)
endif()
set(CPACK_ARCHIVE_COMPONENT_INSTALL OFF)

# DEBs: one for each component. The library's bears the version of its interface in its name, so that two of
# them can be installed at once.
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE staadkit)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1 CACHE STRING "Revision of the Debian packages")
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Hosts built with a library run with each later one of the same interface.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}/staad")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_LIST_DIR}/debian/documents.cmake")

set(staadkit_deb_version "${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE}")
set(staadkit_purpose "staadkit reads STAAD .std models into structures that design programs can
use: one system of units, one frame, classified members, and loads linked
to the members and joints that carry them.
.")

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME "libstaadkit${STAADKIT_INTERFACE_VERSION}")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA "${CMAKE_CURRENT_LIST_DIR}/debian/triggers")
set(CPACK_DEBIAN_LIBRARY_DESCRIPTION "reader and writer of STAAD .std models, shared library
${staadkit_purpose}
This package holds the library that programs need to run.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libstaadkit-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${CPACK_DEBIAN_LIBRARY_PACKAGE_NAME} (= ${staadkit_deb_version})")
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "reader and writer of STAAD .std models, development files
${staadkit_purpose}
This package holds what it takes to build programs with the library:
headers, and the files by which CMake and pkg-config find it.")

set(CPACK_DEBIAN_TOOL_PACKAGE_NAME staadkit)
set(CPACK_DEBIAN_TOOL_PACKAGE_SECTION science)
set(CPACK_DEBIAN_TOOL_PACKAGE_DEPENDS "${CPACK_DEBIAN_LIBRARY_PACKAGE_NAME} (= ${staadkit_deb_version})")
set(CPACK_DEBIAN_TOOL_DESCRIPTION "shows what STAAD .std models hold and writes them anew
staadkit shows the joints, members, storeys, sections, supports and loads
of a structural model, the forces that the analysis printed, and what has
changed since an earlier model; it writes models as normalised .std files
with generated wind and seismic loads. Results are text or JSON.")

include(CPack)
