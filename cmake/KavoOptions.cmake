# The options of the build, and the INTERFACE target with our warning flags. Third-party code does not
# link it.

set(OPENSG_ROOT "" CACHE PATH "Prefix of an installed OpenSG 1.8; empty to build OpenSG/")
set(KAVO_MODEL_DIR /usr/share/assimp/models CACHE PATH "Folder of Debian's assimp-testmodels")
set(KAVO_SANITIZE "" CACHE STRING "Sanitizers, for example address,undefined")
option(KAVO_BUILD_BENCHMARKS "Build the benchmarks" OFF)
option(KAVO_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" OFF)

add_library(kavo_warnings INTERFACE)
target_compile_options(kavo_warnings INTERFACE
    -Wall -Wextra -Wpedantic $<$<BOOL:${KAVO_WARNINGS_AS_ERRORS}>:-Werror>)

if(KAVO_SANITIZE)
    add_compile_options(-fsanitize=${KAVO_SANITIZE} -fno-omit-frame-pointer
        -fno-sanitize-recover=undefined)
    add_link_options(-fsanitize=${KAVO_SANITIZE})
endif()
