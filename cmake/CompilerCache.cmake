# A compiler cache is used where there is one, unless another launcher is asked for.  It may trust
# precompiled headers: the compilers' own check of them is not switched off.
find_program(TNT_CCACHE ccache)
if(TNT_CCACHE AND NOT MSVC AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        ${TNT_CCACHE})
endif()
