# With Visual Studio, too, a program needs no run-time library beside it.
set(CMAKE_MSVC_RUNTIME_LIBRARY "MultiThreaded$<$<CONFIG:Debug>:Debug>")

# Warnings are errors everywhere; the sanitizers exist only in the native build.  No name of a folder
# of this machine gets into a program, so that the same sources give the same bytes anywhere.
function(tnt_target_options target)
    if(MSVC)
        target_compile_options(${target} PRIVATE /W4 /WX /permissive- /utf-8 /EHsc
            /Zc:__cplusplus /guard:cf /guard:ehcont /GS
            # The system's headers and those of test libraries have warnings of their own.
            /external:anglebrackets /external:W0)
    else()
        target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion
            -Wshadow -Werror
            -fstack-protector-strong -ffile-prefix-map=${CMAKE_SOURCE_DIR}/=)
        # The linker adds the library of the stack protector only when it is told, too.
        target_link_options(${target} PUBLIC -fstack-protector-strong)
        if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
            # False alarms of this compiler about its own std::string and std::optional when it
            # optimises (its bugs 105651, 105329 and 80635); which files have them depends on those that
            # they are compiled with.
            target_compile_options(${target} PRIVATE -Wno-restrict -Wno-array-bounds
                -Wno-stringop-overread -Wno-stringop-overflow -Wno-maybe-uninitialized)
        endif()
    endif()
    if(TNT_SANITIZE)
        target_compile_options(${target} PUBLIC -fsanitize=address,undefined
            -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(${target} PUBLIC -fsanitize=address,undefined)
    endif()
    if(TNT_COVERAGE)
        target_compile_options(${target} PRIVATE --coverage)
        target_link_options(${target} PUBLIC --coverage)
    endif()
    if(WIN32)
        target_compile_definitions(${target} PUBLIC UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN
            STRICT WINVER=0x0A00 _WIN32_WINNT=0x0A00)
    endif()
endfunction()
