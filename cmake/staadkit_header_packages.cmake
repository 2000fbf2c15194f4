# Header-only packages of the tool and its tests: the target staadkit_header_packages. Their headers are not
# ours to warn about.
add_library(staadkit_header_packages INTERFACE)
if(CMAKE_CROSSCOMPILING)
    # They serve any system, but /usr/include, where Debian has them, holds headers of this one as well: their
    # folders alone go on the include path.
    set(folder "${PROJECT_BINARY_DIR}/header_packages")
    file(MAKE_DIRECTORY "${folder}")
    foreach(package IN ITEMS CLI fmt nlohmann)
        if(NOT EXISTS "/usr/include/${package}")
            message(FATAL_ERROR "There is no /usr/include/${package}: "
                "install libcli11-dev, libfmt-dev and nlohmann-json3-dev")
        endif()
        file(CREATE_LINK "/usr/include/${package}" "${folder}/${package}" SYMBOLIC)
    endforeach()
    target_include_directories(staadkit_header_packages SYSTEM INTERFACE "${folder}")
    target_compile_definitions(staadkit_header_packages INTERFACE FMT_HEADER_ONLY=1)
else()
    find_package(CLI11 2.1 REQUIRED)
    find_package(fmt 9 REQUIRED)
    find_package(nlohmann_json 3.11 REQUIRED)
    set(packages CLI11::CLI11 fmt::fmt-header-only nlohmann_json::nlohmann_json)
    target_link_libraries(staadkit_header_packages INTERFACE ${packages})
    foreach(package IN LISTS packages)
        get_target_property(folders ${package} INTERFACE_INCLUDE_DIRECTORIES)
        target_include_directories(staadkit_header_packages SYSTEM INTERFACE ${folders})
    endforeach()
endif()
