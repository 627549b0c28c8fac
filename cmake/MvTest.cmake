# SPDX-License-Identifier: LGPL-2.1-or-later
# mv_add_test(<name> LINK <target>...)      a Qt Test program <name>.cpp, run by ctest; THREADS: threads are tested,
#                                           so that it runs with the thread sanitizer, too (tools/nightly tsan)
# mv_add_nightly(<name> COMMAND ...)        a long run: the command with MV_NIGHTLY=1, by ctest --preset nightly alone
# mv_add_benchmark(<name> LINK <target>...) a Google Benchmark program <name>.cpp

function(mv_test_environment out)
    set(${out}
        "QT_QPA_PLATFORM=offscreen"
        "LC_ALL=C.UTF-8"
        "MVCALENDAR_LANGUAGE=de" # as people see it whose language it is written in
        "QTEST_DISABLE_STACK_DUMP=1" # its fork waits for ever when the heap is what is broken
        "ASAN_OPTIONS=detect_leaks=1:strict_string_checks=1"
        "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/lsan.supp:print_suppressions=0"
        "TSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/tsan.supp:print_suppressions=0:die_after_fork=0"
        "UBSAN_OPTIONS=print_stacktrace=1" PARENT_SCOPE)
endfunction()

function(mv_add_test name)
    cmake_parse_arguments(ARG "THREADS" "TIMEOUT" "LINK" ${ARGN})
    add_executable(${name} ${name}.cpp)
    target_link_libraries(${name} PRIVATE MvTestSupport Qt6::Test ${ARG_LINK})
    target_compile_definitions(${name} PRIVATE MV_TEST_DATA="${PROJECT_SOURCE_DIR}/tests/data")
    add_test(NAME ${name} COMMAND ${name})
    mv_test_environment(environment)
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 300)
    endif()
    set_tests_properties(${name} PROPERTIES ENVIRONMENT "${environment}" TIMEOUT ${ARG_TIMEOUT})
    if(ARG_THREADS)
        set_tests_properties(${name} PROPERTIES LABELS threads)
        set_property(GLOBAL APPEND PROPERTY MV_THREADED_TESTS ${name})
    endif()
endfunction()

function(mv_add_nightly name)
    cmake_parse_arguments(ARG "" "TIMEOUT" "COMMAND" ${ARGN})
    add_test(NAME ${name} COMMAND ${ARG_COMMAND} CONFIGURATIONS Nightly)
    mv_test_environment(environment)
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 7200)
    endif()
    set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT} LABELS nightly
        ENVIRONMENT "${environment};MV_NIGHTLY=1;QTEST_FUNCTION_TIMEOUT=7200000")
endfunction()

# mv_add_fuzzer(<name> LINK <target>...) a fuzz target <name>.cpp (LLVMFuzzerTestOneInput) with its seeds in seeds/<name>.
# With MV_FUZZ it is a libFuzzer program; else ctest runs it over the seeds alone.
function(mv_add_fuzzer name)
    cmake_parse_arguments(ARG "" "" "LINK" ${ARGN})
    add_executable(${name} ${name}.cpp)
    target_link_libraries(${name} PRIVATE MvFuzzSupport ${ARG_LINK})
    set_property(GLOBAL APPEND PROPERTY MV_FUZZERS ${name})
    set(seeds ${CMAKE_CURRENT_SOURCE_DIR}/seeds/${name})
    set(command ${name} ${seeds})
    if(MV_FUZZ)
        target_link_options(${name} PRIVATE -fsanitize=fuzzer)
        list(APPEND command -runs=0)
    endif()
    add_test(NAME ${name} COMMAND ${command})
    mv_test_environment(environment)
    set_tests_properties(${name} PROPERTIES ENVIRONMENT "${environment}" TIMEOUT 300)
endfunction()

function(mv_add_benchmark name)
    cmake_parse_arguments(ARG "" "" "LINK" ${ARGN})
    find_package(benchmark REQUIRED)
    add_executable(${name} ${name}.cpp)
    target_link_libraries(${name} PRIVATE benchmark::benchmark ${ARG_LINK})
    mv_loads_modules(${name})
endfunction()
