# Functions that declare the libraries and tests of this project, with one call each.

include(CMakeParseArguments)

# The options of every target of this project.
add_library(nvx_options INTERFACE)
target_compile_options(nvx_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
    -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wformat=2 -Wimplicit-fallthrough -Wundef)
target_compile_definitions(nvx_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # Without this the compiler cache does not know which precompiled header is used.
    target_compile_options(nvx_options INTERFACE -fpch-preprocess)
endif()
if(WIN32)
    target_compile_definitions(nvx_options INTERFACE
        UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0601)
endif()
if(NOT WIN32)
    # Links in less than half the processor time of the usual linker.
    find_program(NVX_LLD ld.lld)
    if(NVX_LLD)
        target_link_options(nvx_options INTERFACE -fuse-ld=lld)
    endif()
endif()
if(NOT NVX_SANITIZE AND NOT NVX_COVERAGE)
    # Defences against faults in the programs, which are tested in what is shipped.
    target_compile_options(nvx_options INTERFACE -fstack-protector-strong -D_FORTIFY_SOURCE=2)
    if(WIN32)
        target_link_options(nvx_options INTERFACE LINKER:--dynamicbase,--nxcompat,--high-entropy-va)
        # The compiler's library with the checks, linked in so that no file of it has to be shipped.
        target_link_libraries(nvx_options INTERFACE -l:libssp.a)
    else()
        target_link_options(nvx_options INTERFACE
            LINKER:-z,relro,-z,now $<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:-pie>)
    endif()
endif()
if(WIN32)
    # The same sources give the same programs.
    target_link_options(nvx_options INTERFACE LINKER:--no-insert-timestamp)
endif()
if(NVX_SANITIZE)
    target_compile_options(nvx_options INTERFACE
        -fsanitize=address,undefined,fuzzer-no-link -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(nvx_options INTERFACE -fsanitize=address,undefined)
endif()
if(NVX_COVERAGE)
    # Several threads may increase a counter at the same time.
    target_compile_options(nvx_options INTERFACE --coverage -O0 -fprofile-update=atomic)
    target_link_options(nvx_options INTERFACE --coverage)
endif()

get_target_property(NVX_MOC Qt6::moc IMPORTED_LOCATION)
configure_file("${PROJECT_SOURCE_DIR}/cmake/moc.sh.in" "${CMAKE_BINARY_DIR}/moc" @ONLY
    FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)

# nvx_library(NAME [MOC] SOURCES FILE... LINKS TARGET... [INCLUDES FOLDER]): a static library of one module.
# Headers are included by their paths below INCLUDES, by default the folder "source". With MOC, Qt's moc reads
# the headers, for classes with Q_OBJECT.
function(nvx_library name)
    cmake_parse_arguments(ARG "MOC" "INCLUDES" "SOURCES;LINKS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    set_property(GLOBAL APPEND PROPERTY NVX_LIBRARIES ${name})
    set_target_properties(${name} PROPERTIES AUTOMOC ${ARG_MOC} AUTOMOC_EXECUTABLE "${CMAKE_BINARY_DIR}/moc")
    target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE nvx_options)
    if(NOT ARG_INCLUDES)
        set(ARG_INCLUDES "${CMAKE_CURRENT_SOURCE_DIR}/source")
    endif()
    target_include_directories(${name} PUBLIC "${ARG_INCLUDES}")
endfunction()

# The options of test programs. They are compiled more often than they run, so they are not optimised and have
# only line numbers as debug information.
add_library(nvx_test_options INTERFACE)
target_compile_options(nvx_test_options INTERFACE -O0 -U_FORTIFY_SOURCE) # which needs an optimised program
if(CMAKE_BUILD_TYPE MATCHES "Deb")
    target_compile_options(nvx_test_options INTERFACE -g1)
endif()

# nvx_test_properties(TEST): the environment of a registered test that is a program of the build.
function(nvx_test_properties test)
    set_tests_properties(${test} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8")
    if(WIN32)
        # The tests share one Windows machine and its registry, so they run one after the other and start
        # first.
        set_tests_properties(${test} PROPERTIES
            COST 1000
            RESOURCE_LOCK windows_machine
            FIXTURES_REQUIRED windows_machine)
    endif()
endfunction()

# nvx_test(NAME [SOURCES FILE...] [LINKS TARGET...] [NEEDS TARGET...]): a test program with its own main,
# registered with ctest. NAME.cpp is its source; NEEDS names programs that it starts.
function(nvx_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS;NEEDS" ${ARGN})
    add_executable(${name} ${name}.cpp ${ARG_SOURCES})
    set_property(GLOBAL APPEND PROPERTY NVX_TESTS ${name})
    set_target_properties(${name} PROPERTIES AUTOMOC ON AUTOMOC_EXECUTABLE "${CMAKE_BINARY_DIR}/moc")
    target_link_libraries(${name} PRIVATE ${ARG_LINKS} Qt6::Test nvx_options nvx_test_options)
    if(ARG_NEEDS)
        add_dependencies(${name} ${ARG_NEEDS})
    endif()
    add_test(NAME ${name} COMMAND ${name})
    nvx_test_properties(${name})
endfunction()

# nvx_tests(PROGRAM TESTS NAME... [UNREGISTERED NAME...] [SOURCES FILE...] [LINKS TARGET...] [NEEDS
# TARGET...]):
# the test classes of a module in one program. NAME.cpp contains the class NAME and ends with NVX_TEST(NAME)
# or NVX_GUILESS_TEST(NAME) of tests/support/test_class.h. Each class is registered with ctest under its name
# and runs in its own process; the caller registers those after UNREGISTERED. NEEDS names programs that tests
# start.
function(nvx_tests program)
    cmake_parse_arguments(ARG "" "" "TESTS;UNREGISTERED;SOURCES;LINKS;NEEDS" ${ARGN})
    set(declarations "")
    set(entries "")
    set(files "")
    foreach(test IN LISTS ARG_TESTS ARG_UNREGISTERED)
        string(APPEND declarations "int run_${test}(int argc, char *argv[]);\n")
        string(APPEND entries "        {\"${test}\", run_${test}},\n")
        list(APPEND files ${test}.cpp)
    endforeach()
    configure_file("${PROJECT_SOURCE_DIR}/cmake/test_program.cpp.in"
        "${CMAKE_CURRENT_BINARY_DIR}/${program}.cpp" @ONLY)
    add_executable(${program} ${files} ${ARG_SOURCES} "${CMAKE_CURRENT_BINARY_DIR}/${program}.cpp")
    set_property(GLOBAL APPEND PROPERTY NVX_TESTS ${program})
    set_target_properties(${program} PROPERTIES AUTOMOC ON AUTOMOC_EXECUTABLE "${CMAKE_BINARY_DIR}/moc")
    target_link_libraries(${program} PRIVATE
        ${ARG_LINKS} nvx_test_support Qt6::Test nvx_options nvx_test_options)
    if(ARG_NEEDS)
        add_dependencies(${program} ${ARG_NEEDS})
    endif()
    foreach(test IN LISTS ARG_TESTS)
        add_test(NAME ${test} COMMAND ${program} ${test})
        nvx_test_properties(${test})
    endforeach()
endfunction()

# nvx_test_definitions(NAME DEFINITION...): preprocessor definitions for one test class of nvx_tests.
# Definitions that contain paths are set for one file only, so that the compiler cache can be used for the
# others.
function(nvx_test_definitions test)
    set_property(SOURCE ${test}.cpp APPEND PROPERTY COMPILE_DEFINITIONS ${ARGN})
endfunction()

# nvx_test_paths(TEST [NAME PATH]...): defines each NAME in TEST.cpp as a path below the checkout, for inCheckout()
# of tests/support/checkout.h.
function(nvx_test_paths test)
    while(ARGN)
        list(POP_FRONT ARGN name path)
        nvx_test_definitions(${test} "${name}=\"$<PATH:RELATIVE_PATH,${path},${PROJECT_SOURCE_DIR}>\"")
    endwhile()
endfunction()

# nvx_python_test(NAME [NEEDS TARGET...] [ENVIRONMENT NAME=VALUE...]): the tests of NAME.py, registered with
# ctest. The test fails if there are none.
function(nvx_python_test name)
    cmake_parse_arguments(ARG "" "" "NEEDS;ENVIRONMENT" ${ARGN})
    find_package(Python3 3.11 REQUIRED COMPONENTS Interpreter)
    add_test(NAME ${name}
        COMMAND ${Python3_EXECUTABLE} -B -m unittest -v ${name}
        WORKING_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}")
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "LC_ALL=C.UTF-8;${ARG_ENVIRONMENT}"
        PASS_REGULAR_EXPRESSION "Ran [1-9][0-9]* tests? in [^\n]*\n\nOK")
    if(ARG_NEEDS)
        add_custom_target(${name}_needs ALL DEPENDS ${ARG_NEEDS})
    endif()
endfunction()

# nvx_fuzzer(NAME LINKS TARGET...): a libFuzzer program of NAME.cpp. If the folder corpus/NAME has seeds,
# ctest makes a fixed number of reproducible runs from them; otherwise it runs the program for two seconds.
# Findings are not written to the source tree.
function(nvx_fuzzer name)
    cmake_parse_arguments(ARG "" "" "LINKS" ${ARGN})
    add_executable(${name} ${name}.cpp)
    target_compile_options(${name} PRIVATE -fsanitize=fuzzer)
    target_link_options(${name} PRIVATE -fsanitize=fuzzer)
    target_link_libraries(${name} PRIVATE ${ARG_LINKS} nvx_options)
    set(limits -timeout=10 -max_len=4096)
    file(GLOB seeds CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/corpus/${name}/*")
    if(seeds)
        list(JOIN seeds "," inputs)
        list(APPEND limits -runs=20000 -seed=1 "-seed_inputs=${inputs}")
    else()
        list(APPEND limits -max_total_time=2)
    endif()
    add_test(NAME ${name} COMMAND ${name} ${limits})
endfunction()
