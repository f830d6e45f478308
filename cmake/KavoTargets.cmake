# The functions that define targets. A CMakeLists.txt in a leaf folder only has names, sources and
# dependencies.
#
# Common arguments:
#   PRECOMPILED set   the precompiled headers to use (KavoPrecompiled.cmake)
#   NO_QT             do not run Qt's code generators

# kavo_add_library(name [STATIC|OBJECT] [NO_QT] SOURCES ... [DEPENDS ...] [PRIVATE_DEPENDS ...]
#                  [INCLUDES ...] [PRECOMPILED set])
# A shared library by default. INCLUDES are the include folders of its clients; the default is its own
# folder.
function(kavo_add_library name)
    cmake_parse_arguments(
        arg "STATIC;OBJECT;NO_QT" "PRECOMPILED" "SOURCES;DEPENDS;PRIVATE_DEPENDS;INCLUDES" ${ARGN})
    set(kind SHARED)
    if(arg_STATIC)
        set(kind STATIC)
    elseif(arg_OBJECT)
        set(kind OBJECT)
    endif()
    if(NOT arg_INCLUDES)
        set(arg_INCLUDES ${CMAKE_CURRENT_SOURCE_DIR})
    endif()
    add_library(${name} ${kind} ${arg_SOURCES})
    if(NOT arg_NO_QT)
        kavo_enable_qt_tools(${name} ${arg_SOURCES})
    endif()
    target_include_directories(${name} PUBLIC ${arg_INCLUDES})
    target_link_libraries(${name} PUBLIC ${arg_DEPENDS} PRIVATE kavo_warnings ${arg_PRIVATE_DEPENDS})
    kavo_use_precompiled_headers(${name} "${arg_PRECOMPILED}")
endfunction()

# kavo_add_room(Name SOURCES ... DEPENDS ...) : a room of the application, the static library kavoName.
# Includes carry the room: "Name/kavoX.h".
function(kavo_add_room name)
    kavo_add_library(kavo${name} STATIC ${ARGN}
        INCLUDES ${PROJECT_SOURCE_DIR}/Host/App PRECOMPILED kavoHostHeaders)
endfunction()

# kavo_add_plugin(name OBJECTS target) : a module that the host loads from its plug-in folder.
function(kavo_add_plugin name)
    cmake_parse_arguments(arg "" "OBJECTS" "" ${ARGN})
    add_library(${name} MODULE)
    target_link_libraries(${name} PRIVATE ${arg_OBJECTS} kavo_warnings)
    set_target_properties(${name} PROPERTIES LIBRARY_OUTPUT_DIRECTORY ${KAVO_PLUGIN_DIR})
endfunction()

# kavo_add_executable(name SOURCES ... DEPENDS ... [PRECOMPILED set])
function(kavo_add_executable name)
    cmake_parse_arguments(arg "" "PRECOMPILED" "SOURCES;DEPENDS" ${ARGN})
    add_executable(${name} ${arg_SOURCES})
    if(KAVO_SANITIZE)
        target_sources(${name} PRIVATE ${PROJECT_SOURCE_DIR}/cmake/KeepLibraries.cpp)
    endif()
    target_link_libraries(${name} PRIVATE ${arg_DEPENDS} kavo_warnings)
    kavo_use_precompiled_headers(${name} "${arg_PRECOMPILED}")
endfunction()

# kavo_add_test(tst_name [SOURCES more.cpp ...] DEPENDS ... [PRECOMPILED set] [WINDOWED]
#               [NEEDS targets...])
# Adds tst_name.cpp as a test. It runs without a display; with WINDOWED it runs in its own X server and
# has the label window. It does not see the user's settings and log level.
# NEEDS are targets to build first that the test does not link.
# Only tst_name.cpp may define classes with Q_OBJECT.
function(kavo_add_test name)
    cmake_parse_arguments(arg "WINDOWED" "PRECOMPILED" "SOURCES;DEPENDS;NEEDS" ${ARGN})
    if(NOT arg_PRECOMPILED)
        set(arg_PRECOMPILED kavoTestHeaders)
    endif()
    kavo_add_executable(${name} SOURCES ${name}.cpp ${arg_SOURCES}
        DEPENDS ${arg_DEPENDS} Qt5::Test PRECOMPILED ${arg_PRECOMPILED})
    kavo_generate_moc(${name} ${name}.cpp)
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

# Runs moc, and uic and rcc if there are sources for them.
function(kavo_enable_qt_tools name)
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    if("${ARGN}" MATCHES "\\.ui")
        set_target_properties(${name} PROPERTIES AUTOUIC ON)
    endif()
    if("${ARGN}" MATCHES "\\.qrc")
        set_target_properties(${name} PROPERTIES AUTORCC ON)
    endif()
endfunction()

# Generates X.moc, which X.cpp includes at its end. AUTOMOC would add another source to the target.
function(kavo_generate_moc name source)
    cmake_path(REPLACE_EXTENSION source LAST_ONLY moc OUTPUT_VARIABLE moc)
    qt5_generate_moc(${source} ${CMAKE_CURRENT_BINARY_DIR}/${moc} TARGET ${name})
    set_property(SOURCE ${source} APPEND PROPERTY OBJECT_DEPENDS ${CMAKE_CURRENT_BINARY_DIR}/${moc})
    target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
endfunction()
