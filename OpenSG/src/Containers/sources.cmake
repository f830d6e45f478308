# The classes described in containers/*.fcd are generated, all in one run.
find_package(Python3 REQUIRED COMPONENTS Interpreter)
file(GLOB descriptions CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/containers/*.fcd)
file(GLOB generator CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/tools/*.py)
set(generate ${Python3_EXECUTABLE} -B ${CMAKE_CURRENT_SOURCE_DIR}/tools/generate_containers.py)

execute_process(
    COMMAND ${generate} --list ${CMAKE_CURRENT_BINARY_DIR} ${descriptions}
    OUTPUT_VARIABLE generated_files OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE "\n" ";" generated_files "${generated_files}")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${descriptions} ${generator})
add_custom_command(
    OUTPUT ${generated_files}
    COMMAND ${generate} ${CMAKE_CURRENT_BINARY_DIR} ${descriptions}
    DEPENDS ${descriptions} ${generator}
    COMMENT "Generating container classes"
    VERBATIM)

file(GLOB container_sources CONFIGURE_DEPENDS
    ${CMAKE_CURRENT_SOURCE_DIR}/src/Containers/*.cpp
    ${CMAKE_CURRENT_SOURCE_DIR}/src/Scene/*.cpp
    ${CMAKE_CURRENT_SOURCE_DIR}/src/State/*.cpp
    ${CMAKE_CURRENT_SOURCE_DIR}/src/Actions/*.cpp)
list(APPEND container_sources ${generated_files} src/Fields/OSGFieldTarget.cpp)
