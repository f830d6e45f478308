#pragma once

#include "IO/OSGPointerField.h"
#include "IO/OSGSceneCursor.h"
#include "IO/OSGSceneValueReader.h"
#include "IO/OSGTemporaryReferences.h"

#include <OpenSG/OSGSceneFileType.h>

#include <string>
#include <unordered_map>
#include <vector>

OSG_BEGIN_NAMESPACE

struct FieldSyntax;

/// Makes containers from the text of an ASCII scene file.
///
/// Errors are reported in the log, with line and token, and skipped. Unknown containers are skipped
/// with their contents. After other errors the reader skips to the next field of the current
/// container.
class AsciiReader
{
public:
    /// The text must outlive the reader. If `replacesLists` is true, lists in the file replace the
    /// lists of new containers; if false, they are appended.
    AsciiReader(std::string_view text, bool replacesLists, SceneFileType::Progress progress);

    /// Returns the containers at the top of the file. They have no references.
    FCPtrStore read();

private:
    struct OpenContainer
    {
        FieldContainerPtr container;
        BitVector startedFields = 0;
        // The field that was read last. Its edit is open.
        BitVector editedField = 0;
    };

    // When these are called, the current token is the first one of what they read. They return
    // false if the text does not continue as expected.
    bool readField(const FieldContainerPtr &owner);
    void edit(BitVector field);
    bool startsList(const Field &field, const FieldDescription &description);
    bool readPointers(PointerField field);
    bool readPointer(PointerField &field);
    bool readListedPointer(PointerField &field, const FieldContainerType &owner);
    bool readValues(Field &field, const FieldSyntax &syntax);
    bool readValue(Field &field, const FieldSyntax &syntax);

    FieldContainerPtr readTop();
    FieldContainerPtr readContainer(const PointerField *target);
    FieldContainerPtr readUse(const PointerField *target);
    FieldContainerPtr create(const std::string &name, const PointerField *target);
    void readBody(const FieldContainerPtr &container);
    void define(const std::string &name, const FieldContainerPtr &container);

    FieldDescription *fieldAtToken(const FieldContainerPtr &owner) const;
    bool isOpen(const FieldContainerPtr &container) const;
    void skipToField(const FieldContainerPtr &owner);

    SceneCursor _cursor;
    SceneValueReader _value;
    bool _replacesLists;
    SceneFileType::Progress _progress;
    std::size_t _size;
    TemporaryReferences _references;
    // The first container of each name.
    std::unordered_map<std::string, FieldContainerPtr> _definitions;
    // The containers whose bodies are being read, outermost first.
    std::vector<OpenContainer> _open;
};

OSG_END_NAMESPACE
