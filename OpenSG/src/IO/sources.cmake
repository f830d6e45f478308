# Sets io_sources: scene files.
set(io_sources
    src/IO/OSGAsciiFileType.cpp
    src/IO/OSGAsciiReader.cpp
    src/IO/OSGAsciiValues.cpp
    src/IO/OSGAsciiWriter.cpp
    src/IO/OSGFieldSyntax.cpp
    src/IO/OSGGraphOpSeq.cpp
    src/IO/OSGPathHandler.cpp
    src/IO/OSGPointerField.cpp
    src/IO/OSGSceneFileHandler.cpp
    src/IO/OSGSceneFileType.cpp
    src/IO/OSGSceneScanner.cpp
    src/IO/OSGSceneValueReader.cpp
    src/IO/OSGSharePtrGraphOp.cpp
    src/IO/OSGSharedContainers.cpp
    src/IO/OSGUnbrokenStringState.cpp
)
