# The second compiler for 64-bit Windows: clang, with headers and libraries of MinGW-w64's g++.
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake)
execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-libgcc-file-name OUTPUT_VARIABLE libgcc
    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
get_filename_component(gcc ${libgcc} DIRECTORY)

set(CMAKE_C_COMPILER clang)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_C_COMPILER_TARGET x86_64-w64-mingw32)
set(CMAKE_CXX_COMPILER_TARGET x86_64-w64-mingw32)
# The two macros are built into g++ for this target: the library brings the comparison of types along.
# The library's variables of a thread are those of g++, which asks for them by calls.
string(JOIN " " CMAKE_CXX_FLAGS_INIT -femulated-tls -D__GXX_MERGED_TYPEINFO_NAMES=0
    -D__GXX_TYPEINFO_EQUALITY_INLINE=0 -Wno-unused-command-line-argument -nostdinc++ -isystem ${gcc}/include/c++
    -isystem ${gcc}/include/c++/x86_64-w64-mingw32 -isystem ${gcc}/include/c++/backward)
set(CMAKE_EXE_LINKER_FLAGS_INIT "-L${gcc} -pthread")
