# Options of the targets of the project:
#   staadkit_compile_options(target)  for all that are not tests
#   staadkit_test_options(target)     for test programs
#   staadkit_driver_options(target)   for test programs that have nothing of the library in them

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release)
endif()

function(staadkit_language_options target)
    target_compile_features(${target} PRIVATE cxx_std_20)
    set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
    if(MSVC)
        target_compile_options(${target} PRIVATE /W4 /permissive- /utf-8 /fp:precise)
        if(STAADKIT_WARNINGS_AS_ERRORS)
            target_compile_options(${target} PRIVATE /WX)
        endif()
    else()
        # No contraction: results are the same to the last bit whatever the processor offers.
        target_compile_options(${target} PRIVATE -ffp-contract=off -Wall -Wextra -Wpedantic -Wshadow
            -Wconversion -Wsign-conversion -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual
            -Wcast-align -Wunused -Wdouble-promotion -Wimplicit-fallthrough)
        if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
            # GCC 12 sees overlapping copies in std::string::operator=(const char*) where there are none.
            target_compile_options(${target} PRIVATE -Wno-restrict)
        endif()
        if(STAADKIT_WARNINGS_AS_ERRORS)
            target_compile_options(${target} PRIVATE -Werror)
        endif()
    endif()
endfunction()

function(staadkit_compile_options target)
    staadkit_language_options(${target})
    if(STAADKIT_SANITIZE AND NOT MSVC)
        target_compile_options(${target} PRIVATE -fsanitize=${STAADKIT_SANITIZE}
            -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(${target} PUBLIC -fsanitize=${STAADKIT_SANITIZE})
    endif()
endfunction()

# Test programs are large and run for seconds: what takes time is their compilation, so it does not optimise. The
# library under test is compiled as for everything else.
function(staadkit_test_options target)
    staadkit_compile_options(${target})
    if(NOT MSVC)
        target_compile_options(${target} PRIVATE -O0)
    endif()
endfunction()

# A program that only starts another one, which is what is tested: it needs no sanitizers.
function(staadkit_driver_options target)
    staadkit_language_options(${target})
    if(NOT MSVC)
        target_compile_options(${target} PRIVATE -O0)
    endif()
endfunction()

# Spares a test program of many files most of its compilation: what each of them includes, `more` among it, is compiled
# once, and the files of a folder are compiled as one, so that names in their anonymous namespaces must differ within a
# folder; `staadkit_compiled_alone` excepts those that share one. With CMAKE_DISABLE_PRECOMPILE_HEADERS, as in the
# preset for 32 bits, each file is compiled by itself: there, one that forgets to include something does not compile.
function(staadkit_test_batches target) # more...
    target_precompile_headers(${target} PRIVATE <gtest/gtest.h> <string> <vector> ${ARGN})
    if(CMAKE_DISABLE_PRECOMPILE_HEADERS)
        return()
    endif()
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
    get_target_property(sources ${target} SOURCES)
    foreach(source IN LISTS sources)
        cmake_path(GET source PARENT_PATH folder)
        cmake_path(GET folder FILENAME group)
        set_source_files_properties(${source} PROPERTIES UNITY_GROUP "batch_${group}")
    endforeach()
    if(NOT MSVC)
        # A local name may be that of something in another file of the folder.
        target_compile_options(${target} PRIVATE -Wno-shadow)
    endif()
endfunction()

function(staadkit_compiled_alone) # sources...
    set_source_files_properties(${ARGN} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
endfunction()
