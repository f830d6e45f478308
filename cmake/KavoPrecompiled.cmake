# Precompiled headers. Each layer has a set; a target uses one with PRECOMPILED <set>.
# scripts/check-headers checks that each header compiles without them.

option(KAVO_PRECOMPILED_HEADERS "Precompile the headers that many sources include" ON)

# ccache, if it is installed. It refuses precompiled headers unless it may ignore the macros that they
# define and the time macros.
find_program(KAVO_CCACHE ccache)
if(KAVO_CCACHE)
    if(NOT CMAKE_CXX_COMPILER_LAUNCHER)
        set(CMAKE_CXX_COMPILER_LAUNCHER
            ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${KAVO_CCACHE})
    endif()
    set(KAVO_CACHE_OPTIONS -fpch-preprocess)
endif()

# kavo_add_precompiled_headers(set HEADERS ... DEPENDS ...)
function(kavo_add_precompiled_headers name)
    cmake_parse_arguments(arg "" "" "HEADERS;DEPENDS" ${ARGN})
    if(NOT KAVO_PRECOMPILED_HEADERS)
        return()
    endif()
    set(source ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
    file(CONFIGURE OUTPUT ${source} CONTENT "")
    add_library(${name} OBJECT ${source})
    target_link_libraries(${name} PRIVATE ${arg_DEPENDS} kavo_warnings)
    target_precompile_headers(${name} PRIVATE ${arg_HEADERS})
    target_compile_options(${name} PRIVATE ${KAVO_CACHE_OPTIONS})
endfunction()

# kavo_use_precompiled_headers(target set) : the set may be empty.
function(kavo_use_precompiled_headers name set)
    if(KAVO_PRECOMPILED_HEADERS AND set)
        target_precompile_headers(${name} REUSE_FROM ${set})
        target_compile_options(${name} PRIVATE ${KAVO_CACHE_OPTIONS})
    endif()
endfunction()
