# Finds an installed OpenSG 1.8 below OPENSG_ROOT and offers it as OpenSG::OpenSG, the name that the
# library in OpenSG/ has as well, so that nothing else in the build knows which of the two it uses.
#
# Headers are <prefix>/include/OpenSG/OSG*.h; clients include <OpenSG/OSGNode.h>, OpenSG's own headers
# include <OSGNode.h>, hence two include folders.

find_path(OpenSG_INCLUDE_DIR OpenSG/OSGConfig.h PATHS ${OPENSG_ROOT}/include NO_DEFAULT_PATH)
foreach(part Base System)
    find_library(OpenSG_${part}_LIBRARY OSG${part}
        PATHS ${OPENSG_ROOT} PATH_SUFFIXES lib lib/opt lib64 NO_DEFAULT_PATH)
endforeach()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(OpenSG REQUIRED_VARS
    OpenSG_INCLUDE_DIR OpenSG_Base_LIBRARY OpenSG_System_LIBRARY)

if(OpenSG_FOUND AND NOT TARGET OpenSG::OpenSG)
    find_package(OpenGL REQUIRED COMPONENTS OpenGL)
    find_library(OpenSG_GLU_LIBRARY GLU REQUIRED)
    add_library(OpenSG::OpenSG INTERFACE IMPORTED)
    set_target_properties(OpenSG::OpenSG PROPERTIES
        INTERFACE_INCLUDE_DIRECTORIES "${OpenSG_INCLUDE_DIR};${OpenSG_INCLUDE_DIR}/OpenSG"
        INTERFACE_LINK_LIBRARIES
        "${OpenSG_System_LIBRARY};${OpenSG_Base_LIBRARY};OpenGL::GL;${OpenSG_GLU_LIBRARY}")
endif()
