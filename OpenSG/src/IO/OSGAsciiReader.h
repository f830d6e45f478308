#pragma once

#include "IO/OSGContainerKeeper.h"
#include "IO/OSGPointerField.h"
#include "IO/OSGSceneCursor.h"
#include "IO/OSGSceneValueReader.h"

#include <OpenSG/OSGSceneFileType.h>

#include <string>
#include <unordered_map>
#include <vector>

OSG_BEGIN_NAMESPACE

struct FieldSyntax;

/// Makes the containers that the text of an ASCII scene file describes.
///
/// What it does not understand it reports in the log, with line and token, and skips: unknown
/// containers with all that is in them, otherwise up to the next field of the container that is
/// being read.
class AsciiReader
{
public:
    /// The text must outlive the reader. Lists of values are appended to those that new containers
    /// have, or replace them.
    AsciiReader(std::string_view text, bool replacesLists, SceneFileType::Progress progress);

    /// The containers at the top of the file; nobody holds a reference to them yet.
    FCPtrStore read();

private:
    struct OpenContainer
    {
        FieldContainerPtr container;
        BitVector startedFields = 0;
        /// Of the field that was read last, whose edit goes on until another begins.
        BitVector editedField = 0;
    };

    // Each stands on the first token of what it reads. False: the text goes on in an unknown way.
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
    ContainerKeeper _keeper;
    /// By name; where several containers have the same, the first.
    std::unordered_map<std::string, FieldContainerPtr> _definitions;
    /// The containers whose bodies are being read, outermost first.
    std::vector<OpenContainer> _open;
};

OSG_END_NAMESPACE
