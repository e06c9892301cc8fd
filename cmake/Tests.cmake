# GoogleTest comes as source where there is one, so that it is built with the options of this build,
# and otherwise as a package; for Visual Studio, vcpkg.json names it.
set(TNT_GOOGLETEST_DIR /usr/src/googletest CACHE PATH "Source folder of GoogleTest")
if(EXISTS ${TNT_GOOGLETEST_DIR}/CMakeLists.txt)
    set(INSTALL_GTEST OFF CACHE BOOL "" FORCE)
    set(CMAKE_POLICY_DEFAULT_CMP0091 NEW) # its run-time library is the one of this build
    set(gtest_force_shared_crt ON CACHE BOOL "" FORCE) # and not changed afterwards
    add_subdirectory(${TNT_GOOGLETEST_DIR} googletest EXCLUDE_FROM_ALL)
else()
    find_package(GTest CONFIG REQUIRED)
    foreach(library gmock gtest gtest_main)
        add_library(${library} ALIAS GTest::${library})
    endforeach()
endif()

# Paths that a test program is told are those that it sees: of a cross build, as Wine shows them.
set(test_root $<$<BOOL:${CMAKE_CROSSCOMPILING}>:Z:>)

function(tnt_test_program name)
    cmake_parse_arguments(arg "" "" "FOLDERS;LIBRARIES" ${ARGN})
    tnt_sources(sources ${arg_FOLDERS})
    add_executable(${name} ${sources})
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR})
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES})
    target_compile_definitions(${name} PRIVATE TNT_SOURCE_DIR="${CMAKE_SOURCE_DIR}"
        $<$<CXX_COMPILER_ID:MSVC>:_CRT_SECURE_NO_WARNINGS>) # getenv is standard
    tnt_target_options(${name})
    if("gtest" IN_LIST arg_LIBRARIES)
        target_precompile_headers(${name} PRIVATE <gtest/gtest.h> <array> <functional> <map>
            <memory> <string> <vector>)
    endif()
    tnt_unity(${name} 8)
    if(NOT MSVC)
        # The tests' own code is built once and run once; the code under test is as it is shipped.
        target_compile_options(${name} PRIVATE -O0)
    endif()
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # The compiler need not tidy up its memory before it has used a gigabyte.
        target_compile_options(${name} PRIVATE --param=ggc-min-heapsize=1000000)
    endif()
    if(TNT_SANITIZE)
        # A null or misaligned pointer ends the process under AddressSanitizer anyway; asking before
        # each access makes the tests a third slower to compile.  The code under test has it all.
        target_compile_options(${name} PRIVATE -fno-sanitize=null,alignment,vptr)
    endif()
    if(WIN32 AND NOT MSVC)
        target_link_options(${name} PRIVATE -static)
    endif()
endfunction()

# A test that "ctest" can run with nothing else typed.  A window has the screen to itself, since
# on Windows there is one for all.
function(tnt_test name)
    add_test(NAME ${name} COMMAND ${ARGN})
    set_tests_properties(${name} PROPERTIES TIMEOUT 2400)
    if(WIN32)
        set_tests_properties(${name} PROPERTIES RUN_SERIAL TRUE)
    endif()
endfunction()

set(portable_test_folders tests/common tests/library tests/palettes tests/convert tests/shading
    tests/solidworks tests/support/language tests/support/settings tests/support/windows
    tests/mainwindow tests/app tests/standin tests/fakes)
if(TNT_CONVERTER)
    list(APPEND portable_test_folders tests/converter tests/converter/${converter_system})
endif()
tnt_test_program(portable_tests FOLDERS ${portable_test_folders}
    LIBRARIES $<TARGET_NAME_IF_EXISTS:tnt_converter> standin_model tnt_portable gmock gtest
    gtest_main)
tnt_test(portable_tests portable_tests)

# Measures the library and its files; its numbers stand in docs/performance.md.
tnt_sources(bench_sources tests/bench/library)
if(WIN32)
    list(FILTER bench_sources EXCLUDE REGEX "Portable\\.cpp$")
else()
    list(FILTER bench_sources EXCLUDE REGEX "Windows\\.cpp$")
endif()
add_executable(library_bench ${bench_sources})
target_link_libraries(library_bench PRIVATE $<IF:$<BOOL:${WIN32}>,tnt_forms,tnt_portable>)
# Measures the preview of a material.
add_executable(shading_bench tests/bench/ShadingBench.cpp)
target_link_libraries(shading_bench PRIVATE tnt_portable)
foreach(bench library_bench shading_bench)
    tnt_target_options(${bench})
    if(WIN32 AND NOT MSVC)
        target_link_options(${bench} PRIVATE -static)
    endif()
endforeach()

if(WIN32)
    tnt_test_program(windows_tests FOLDERS tests/platform tests/ui
        LIBRARIES standin_com standin_model tnt_forms tnt_version oleacc gmock gtest gtest_main)
    # Types of the shell have names that the stand-in's model uses, too.
    set_source_files_properties(tests/ui/MainPanesTest.cpp PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
    # The forms' icons, and the manifest that gives the program its common controls.
    target_sources(windows_tests PRIVATE resources/tnt4swx.rc tests/fakes/FakeProgram.cpp)
    # Started as processes of their own, by the tests of the server and of the program's start.
    add_dependencies(windows_tests swx_standin tnt4swx)
    set(program_folder TNT_PROGRAM_FOLDER="${test_root}$<TARGET_FILE_DIR:tnt4swx>")
    target_compile_definitions(windows_tests PRIVATE ${program_folder})
    tnt_test(windows_tests windows_tests)
    set(remote_sources tests/e2e/RunningProgram.cpp tests/e2e/RemoteWindow.cpp
        tests/e2e/RealInput.cpp)
    target_sources(windows_tests PRIVATE ${remote_sources})
    # Measure the start of the program, its list, and its walks over SolidWorks documents; their
    # numbers stand in docs/performance.md.
    add_executable(start_bench tests/bench/StartBench.cpp tests/platform/SettingsKey.cpp
        ${remote_sources})
    add_executable(sort_bench tests/bench/SortBench.cpp)
    add_executable(walk_bench tests/bench/WalkBench.cpp tests/platform/StandInProcess.cpp
        tests/platform/ScratchFolder.cpp resources/tnt4swx.rc)
    add_executable(groups_bench tests/bench/GroupsBench.cpp tests/platform/ScratchFolder.cpp
        resources/tnt4swx.rc)
    add_executable(list_bench tests/bench/ListBench.cpp tests/platform/ScratchFolder.cpp
        resources/tnt4swx.rc)
    add_executable(preview_bench tests/bench/PreviewBench.cpp tests/platform/ScratchFolder.cpp
        resources/tnt4swx.rc)
    set(whole_program_benches walk_bench groups_bench list_bench preview_bench)
    foreach(bench ${whole_program_benches})
        target_sources(${bench} PRIVATE tests/ui/RealProgram.cpp)
        target_link_libraries(${bench} PRIVATE standin_model tnt_forms tnt_version)
    endforeach()
    target_compile_definitions(walk_bench PRIVATE ${program_folder}
        $<$<CXX_COMPILER_ID:MSVC>:_CRT_SECURE_NO_WARNINGS>)
    add_dependencies(start_bench tnt4swx)
    add_dependencies(walk_bench swx_standin)
    foreach(bench start_bench sort_bench ${whole_program_benches})
        target_link_libraries(${bench} PRIVATE tnt_platform)
        tnt_target_options(${bench})
        if(NOT MSVC)
            target_link_options(${bench} PRIVATE -static)
        endif()
    endforeach()
    # The resource script holds the manifest.
    if(MSVC)
        foreach(program windows_tests ${whole_program_benches})
            target_link_options(${program} PRIVATE /MANIFEST:NO)
        endforeach()
    endif()
    # A program of its own: its processes are killed, and it wants mounted places around it.
    tnt_test_program(file_faults FOLDERS tests/faults LIBRARIES tnt_platform gtest)
    target_sources(file_faults PRIVATE tests/e2e/RunningProgram.cpp
        tests/platform/ScratchFolder.cpp)
    if(CMAKE_CROSSCOMPILING)
        tnt_test(file_faults ${CMAKE_SOURCE_DIR}/tools/wine-session.sh
            ${CMAKE_SOURCE_DIR}/tools/run-file-faults.sh $<TARGET_FILE:file_faults>)
    else()
        tnt_test(file_faults file_faults)
    endif()
    tnt_test_program(play_job FOLDERS tests/e2e LIBRARIES tnt_platform gdiplus)
    add_dependencies(play_job tnt4swx swx_standin)
    foreach(job main files editor mouse windows)
        tnt_test(${job}_job play_job ${job} ${test_root}$<TARGET_FILE_DIR:tnt4swx>
            ${test_root}${CMAKE_BINARY_DIR}/screenshots/${job})
    endforeach()
endif()
