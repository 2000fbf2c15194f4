# staadkit_discover_tests(target): the tests of a GoogleTest program, each a test of CTest.
#
# Programs for another system start slowly: theirs are run in a few portions, side by side.
include(GoogleTest)

function(staadkit_discover_tests target)
    if(NOT CMAKE_CROSSCOMPILING)
        gtest_discover_tests(${target} DISCOVERY_MODE PRE_TEST)
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
