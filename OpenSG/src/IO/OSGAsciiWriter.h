#pragma once

#include "IO/OSGSharedContainers.h"

#include <OpenSG/OSGSceneFileType.h>

#include <iosfwd>
#include <string>

OSG_BEGIN_NAMESPACE

class AsciiValues;
struct FieldSyntax;

/// Writes a container and all containers that it refers to as an ASCII scene file. Fields that are
/// not internal are written. A field of a type that some readers of the format do not understand is
/// written only if it differs from the field of a new container. Everything that cannot be read
/// back (bindings of attachments, empty places in lists, some values) is reported in the log.
class AsciiWriter
{
public:
    AsciiWriter(std::ostream &out, bool keepsWhiteSpace, SceneFileType::Progress progress);

    /// Returns false, with a line in the log, if the graph is too deep for the format. The caller
    /// has to check the stream.
    bool write(const FieldContainerPtr &root);

private:
    void writeContainer(const FieldContainerPtr &container, UInt32 indent);
    void writeBody(const FieldContainerPtr &container, UInt32 indent);
    void writeField(
        const FieldContainerPtr &owner, const FieldDescription &description, UInt32 indent);
    void writeAttachments(const Field &field, UInt32 indent);
    void writePointers(const Field &field, UInt32 indent);
    void writePointer(const FieldContainerPtr &target, UInt32 indent);
    void writeValues(
        const Field &field, const FieldSyntax &syntax, AsciiValues &values, UInt32 indent);
    void newLine(UInt32 indent) { _text.append(indent, ' '); }
    void flush(std::size_t limit);

    std::ostream &_out;
    bool _keepsWhiteSpace;
    SceneFileType::Progress _progress;
    SharedContainers *_shared = nullptr;
    std::string _text;
    std::size_t _writtenCount = 0;
    UInt32 _depth = 0;
    bool _isTooDeep = false;
};

OSG_END_NAMESPACE
