# staadkit_discover_tests(target): the tests of a GoogleTest program, each a test of CTest.
#
# Programs for another system start slowly, and so do those with a sanitizer: theirs are run in a few portions, side
# by side.
include(GoogleTest)

function(staadkit_discover_tests target)
    if(NOT CMAKE_CROSSCOMPILING AND NOT STAADKIT_SANITIZE)
        # None takes long; one that does not end is to fail.
        gtest_discover_tests(${target} DISCOVERY_MODE PRE_TEST PROPERTIES TIMEOUT 120)
        return()
    endif()
    set(portions 4)
    foreach(portion RANGE 1 ${portions})
        math(EXPR index "${portion} - 1")
        add_test(NAME ${target}.${portion} COMMAND ${target} --gtest_brief=1)
        set_tests_properties(${target}.${portion} PROPERTIES TIMEOUT 600
            ENVIRONMENT "GTEST_TOTAL_SHARDS=${portions};GTEST_SHARD_INDEX=${index}")
    endforeach()
endfunction()
