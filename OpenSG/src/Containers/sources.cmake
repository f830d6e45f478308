# Sets container_sources: containers, what scenes are made of, and what is done with them.

# The classes described in containers/*.fcd are generated, all in one run.
find_package(Python3 3.9 REQUIRED COMPONENTS Interpreter)
set(descriptions
    attributes backgrounds cameras chunks drawables groups lights materials nodes properties shaders
    textures viewports)
list(TRANSFORM descriptions PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/containers/)
list(TRANSFORM descriptions APPEND .fcd)
set(generator
    container_description.py container_header.py container_source.py generate_containers.py)
list(TRANSFORM generator PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/tools/)
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

set(container_sources
    ${generated_files}
    src/Actions/OSGAction.cpp
    src/Actions/OSGGraphOp.cpp
    src/Actions/OSGGraphOpFactory.cpp
    src/Actions/OSGTraversal.cpp
    src/Actions/OSGTreeCopy.cpp
    src/Containers/OSGChangeList.cpp
    src/Containers/OSGContainerListing.cpp
    src/Containers/OSGFieldContainer.cpp
    src/Containers/OSGFieldContainerFactory.cpp
    src/Containers/OSGFieldContainerPtr.cpp
    src/Containers/OSGFieldContainerPtrBase.cpp
    src/Containers/OSGFieldContainerType.cpp
    src/Containers/OSGFieldDescription.cpp
    src/Containers/OSGHandleFields.cpp
    src/Containers/OSGThread.cpp
    src/Fields/OSGFieldTarget.cpp
    src/Scene/OSGAttachment.cpp
    src/Scene/OSGAttachmentContainer.cpp
    src/Scene/OSGGeoProperty.cpp
    src/Scene/OSGGeometry.cpp
    src/Scene/OSGNode.cpp
    src/Scene/OSGNodeCore.cpp
    src/Scene/OSGParticleBSPTreeFields.cpp
    src/Scene/OSGSimpleAttachments.cpp
    src/Scene/OSGSimpleGeometry.cpp
    src/Scene/OSGStringAttributeMap.cpp
    src/Scene/OSGTransforms.cpp
    src/Scene/OSGTriangleBuilder.cpp
    src/State/OSGChunkMaterial.cpp
    src/State/OSGFatBorderChunk.cpp
    src/State/OSGImage.cpp
    src/State/OSGImageFile.cpp
    src/State/OSGMaterial.cpp
    src/State/OSGMaterialChoices.cpp
    src/State/OSGShaderParameterChunk.cpp
    src/State/OSGSimpleMaterial.cpp
    src/State/OSGSimpleTexturedMaterial.cpp
    src/State/OSGState.cpp
    src/State/OSGStateChunk.cpp
    src/State/OSGTextureChunk.cpp
)
