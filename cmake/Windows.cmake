# A program as it is shipped: one file that runs anywhere, without a run-time library beside it.
function(tnt_windows_program program)
    if(MSVC)
        target_link_options(${program} PRIVATE /MANIFEST:NO # the resource script holds it
            /guard:cf /guard:ehcont /CETCOMPAT
            /DEPENDENTLOADFLAG:0x800)
    else()
        # The same sources give the same bytes: no time of the link in it.
        target_link_options(${program} PRIVATE -static -municode -Wl,--dynamicbase
            -Wl,--nxcompat -Wl,--high-entropy-va -Wl,--no-insert-timestamp
            $<$<CONFIG:Release>:-s>)
    endif()
    set_target_properties(${program} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
endfunction()

# The Windows half: toolkit, forms, the program and the stand-in.
tnt_sources(platform_sources platform platform/controls)
add_library(tnt_platform STATIC ${platform_sources})
target_link_libraries(tnt_platform PUBLIC tnt_portable comctl32 comdlg32 gdi32 user32 shell32 ole32
    oleaut32 uuid advapi32)
tnt_target_options(tnt_platform)
target_precompile_headers(tnt_platform PRIVATE ${standard_headers} <windows.h> <commctrl.h>)
# The console program takes what it needs of these, file by file, and nothing of windows with it.
file(GLOB ports_to_windows ${CMAKE_SOURCE_DIR}/platform/*.cpp)
set_source_files_properties(${ports_to_windows} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
tnt_unity(tnt_platform 10)

add_library(tnt_forms STATIC ${form_sources})
target_link_libraries(tnt_forms PUBLIC tnt_platform)
tnt_target_options(tnt_forms)
target_precompile_headers(tnt_forms REUSE_FROM tnt_platform)
tnt_unity(tnt_forms 10)

configure_file(${CMAKE_SOURCE_DIR}/resources/tnt4swx.manifest.in
    ${CMAKE_BINARY_DIR}/generated/resources/tnt4swx.manifest @ONLY)

add_executable(tnt4swx WIN32 app/main.cpp resources/tnt4swx.rc)
target_link_libraries(tnt4swx PRIVATE tnt_forms tnt_version)
tnt_target_options(tnt4swx)

tnt_sources(standin_sources standin/com)
list(FILTER standin_sources EXCLUDE REGEX "/StandInMain\\.cpp$")
add_library(standin_com STATIC ${standin_sources})
target_link_libraries(standin_com PUBLIC standin_model tnt_platform)
tnt_target_options(standin_com)
target_precompile_headers(standin_com REUSE_FROM tnt_platform)
tnt_unity(standin_com 10)

add_executable(swx_standin WIN32 standin/com/StandInMain.cpp resources/swx_standin.rc)
target_link_libraries(swx_standin PRIVATE standin_com tnt_version)
tnt_target_options(swx_standin)

tnt_windows_program(tnt4swx)
tnt_windows_program(swx_standin)

# What the program reads at run time stands beside it.
add_custom_target(program_data ALL
    COMMAND ${CMAKE_COMMAND} -DSOURCE=${CMAKE_SOURCE_DIR}/resources
        -DTARGET=$<TARGET_FILE_DIR:tnt4swx> -P ${CMAKE_SOURCE_DIR}/cmake/CopyProgramData.cmake)
add_dependencies(tnt4swx program_data)
