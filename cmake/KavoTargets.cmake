# The verbs of the build. A leaf CMakeLists.txt is a name, its sources and what it depends on.

# kavo_add_library(name [OBJECT] SOURCES ... [DEPENDS ...] [PRIVATE_DEPENDS ...] [INCLUDES ...])
# A shared library (or the object library that a module and its tests share). Its own folder, or
# INCLUDES where given, is what its clients include from.
function(kavo_add_library name)
    cmake_parse_arguments(arg "OBJECT" "" "SOURCES;DEPENDS;PRIVATE_DEPENDS;INCLUDES" ${ARGN})
    set(kind SHARED)
    if(arg_OBJECT)
        set(kind OBJECT)
    endif()
    if(NOT arg_INCLUDES)
        set(arg_INCLUDES ${CMAKE_CURRENT_SOURCE_DIR})
    endif()
    add_library(${name} ${kind} ${arg_SOURCES})
    kavo_enable_qt_tools(${name})
    target_include_directories(${name} PUBLIC ${arg_INCLUDES})
    target_link_libraries(${name} PUBLIC ${arg_DEPENDS} PRIVATE kavo_warnings ${arg_PRIVATE_DEPENDS})
endfunction()

# kavo_add_plugin(name OBJECTS target) : a module that the host loads from its plug-in folder.
function(kavo_add_plugin name)
    cmake_parse_arguments(arg "" "OBJECTS" "" ${ARGN})
    add_library(${name} MODULE)
    target_link_libraries(${name} PRIVATE ${arg_OBJECTS} kavo_warnings)
    set_target_properties(${name} PROPERTIES LIBRARY_OUTPUT_DIRECTORY ${KAVO_PLUGIN_DIR})
endfunction()

# kavo_add_executable(name SOURCES ... DEPENDS ...)
function(kavo_add_executable name)
    cmake_parse_arguments(arg "" "" "SOURCES;DEPENDS" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    if(KAVO_SANITIZE)
        target_sources(${name} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/KeepLibraries.cpp)
    endif()
    kavo_enable_qt_tools(${name})
    target_link_libraries(${name} PRIVATE ${arg_DEPENDS} kavo_warnings)
endfunction()

# kavo_add_test(tst_name [SOURCES more.cpp ...] DEPENDS ... [WINDOWED] [NEEDS targets...])
# Runs tst_name.cpp under CTest: without a display, or, WINDOWED, in a real X server of its own and
# with the label window. The user's settings and log level have no part in it.
# NEEDS names targets that must be built first though the test does not link them.
function(kavo_add_test name)
    cmake_parse_arguments(arg "WINDOWED" "" "SOURCES;DEPENDS;NEEDS" ${ARGN})
    kavo_add_executable(${name} SOURCES ${name}.cpp ${arg_SOURCES} DEPENDS ${arg_DEPENDS} Qt5::Test)
    if(arg_NEEDS)
        add_dependencies(${name} ${arg_NEEDS})
    endif()
    if(arg_WINDOWED)
        add_test(NAME ${name} COMMAND ${PROJECT_SOURCE_DIR}/scripts/with-display $<TARGET_FILE:${name}>)
        set_tests_properties(${name} PROPERTIES LABELS window)
        set(platform xcb)
    else()
        add_test(NAME ${name} COMMAND ${name})
        set(platform offscreen)
    endif()
    set_tests_properties(${name} PROPERTIES
        TIMEOUT 240
        ENVIRONMENT "QT_QPA_PLATFORM=${platform};XDG_CONFIG_HOME=${PROJECT_BINARY_DIR}/settings/${name}"
        ENVIRONMENT_MODIFICATION "OSG_LOG_LEVEL=unset:;OSG_LOG_TYPE=unset:"
    )
endfunction()

# kavo_add_benchmark(bm_name DEPENDS ...) : built with KAVO_BUILD_BENCHMARKS, run by scripts/bench.
function(kavo_add_benchmark name)
    cmake_parse_arguments(arg "" "" "SOURCES;DEPENDS" ${ARGN})
    kavo_add_executable(${name} SOURCES ${name}.cpp ${arg_SOURCES} DEPENDS ${arg_DEPENDS})
endfunction()

function(kavo_enable_qt_tools name)
    set_target_properties(${name} PROPERTIES AUTOMOC ON AUTOUIC ON AUTORCC ON)
endfunction()
