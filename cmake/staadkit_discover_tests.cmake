# staadkit_discover_tests(target): the tests of a GoogleTest program as tests of CTest: a few portions that run side by
# side. A process for each test would take longer to start than most tests run, most of all under Wine, an emulator or
# a sanitizer.
function(staadkit_discover_tests target)
    set(portions 4)
    foreach(portion RANGE 1 ${portions})
        math(EXPR index "${portion} - 1")
        add_test(NAME ${target}.${portion} COMMAND ${target} --gtest_brief=1)
        # None takes long; one that does not end is to fail.
        set_tests_properties(${target}.${portion} PROPERTIES TIMEOUT 600
            ENVIRONMENT "GTEST_TOTAL_SHARDS=${portions};GTEST_SHARD_INDEX=${index}")
    endforeach()
endfunction()
