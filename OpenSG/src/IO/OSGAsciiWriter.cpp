#include "IO/OSGAsciiWriter.h"

#include "IO/OSGAsciiFormat.h"
#include "IO/OSGAsciiValues.h"
#include "Nodes/OSGContainerTargets.h"

#include <OpenSG/OSGAttachmentContainer.h>
#include <OpenSG/OSGLog.h>

#include <limits>
#include <ostream>

OSG_BEGIN_NAMESPACE

namespace {

constexpr UInt32 indentStep = 4;
constexpr UInt32 listWidth = 60;
constexpr UInt32 unlimitedWidth = std::numeric_limits<UInt32>::max();
constexpr std::size_t blockSize = 1 << 16;
// The binding in a key of an attachment map.
constexpr UInt32 bindingMask = 0xffff;

bool isDefault(const FieldContainerPtr &owner, const Field &field, UInt32 id)
{
    std::string text;
    std::string defaultText;
    const FieldContainerPtr prototype = owner->getType().getPrototype();
    return prototype
        && field.getValueByStr(text) == prototype->getField(id)->getValueByStr(defaultText);
}

void reportBindings(const FieldContainerPtr &owner, const Field &field)
{
    for (const auto &[key, attachment] : static_cast<const SFAttachmentMap &>(field).getValue()) {
        const UInt32 binding = key & bindingMask;
        if (binding != 0 && !attachment->getInternal().getValue()) {
            AsciiFormat::report(owner->getTypeName(), "attachments",
                "the binding " + std::to_string(binding) + " of a " + attachment->getTypeName()
                    + " is not written: it reads back as 0, in the place of what is there");
        }
    }
}

void reportEmptyPlaces(const FieldContainerPtr &owner, const Field &field, const Char8 *name)
{
    bool hasEmpty = false;
    for (UInt32 i = 0; i < field.getSize(); ++i) {
        hasEmpty = hasEmpty || !field.getFieldContainer(i);
    }
    if (hasEmpty && field.getCardinality() == FieldType::MULTI_FIELD) {
        AsciiFormat::report(owner->getTypeName(), name,
            "an empty place in the list is written, which most readers leave out");
    }
}

} // namespace

AsciiWriter::AsciiWriter(std::ostream &out, bool keepsWhiteSpace, SceneFileType::Progress progress)
    : _out(out)
    , _keepsWhiteSpace(keepsWhiteSpace)
    , _progress(std::move(progress))
{
}

bool AsciiWriter::write(const FieldContainerPtr &root)
{
    SharedContainers shared(root);
    _shared = &shared;
    _text = std::string(AsciiFormat::header) + '\n';
    writeContainer(root, 0);
    flush(0);
    if (_isTooDeep) {
        SWARNING << "Scene file: more than " << AsciiFormat::maxDepth
                 << " containers inside each other cannot be written" << endLog;
    }
    return !_isTooDeep;
}

void AsciiWriter::writeContainer(const FieldContainerPtr &container, UInt32 indent)
{
    newLine(indent);
    if (!_shared->name(container).empty()) {
        _text.append("USE ").append(_shared->name(container)).append("\n");
        return;
    }
    if (_shared->isShared(container)) {
        _text.append("DEF ").append(_shared->giveName(container)).append(" ");
    }
    _text.append(container->getTypeName()).append(" {\n");
    writeBody(container, indent + indentStep);
    newLine(indent);
    _text.append("}\n");
    flush(blockSize);
    _progress(++_writtenCount, _shared->count());
}

void AsciiWriter::writeBody(const FieldContainerPtr &container, UInt32 indent)
{
    _isTooDeep = _isTooDeep || _depth == AsciiFormat::maxDepth;
    if (_isTooDeep) {
        return;
    }
    ++_depth;
    const FieldContainerType &type = container->getType();
    for (UInt32 id = 1; id <= type.getNumFieldDescs(); ++id) {
        const FieldDescription &description = *type.getFieldDescription(id);
        if (!description.isInternal()) {
            writeField(container, description, indent);
        }
    }
    --_depth;
}

void AsciiWriter::writeField(
    const FieldContainerPtr &owner, const FieldDescription &description, UInt32 indent)
{
    const Field *field = owner->getField(description.getFieldId());
    if (!field) {
        return;
    }
    const FieldSyntax syntax = FieldSyntax::of(field->getType());
    const bool isWritten = syntax.kind != FieldSyntax::None
        && (syntax.isCommon || !isDefault(owner, *field, description.getFieldId()));
    if (!isWritten) {
        return;
    }
    newLine(indent);
    _text += description.getCName();
    if (syntax.kind == FieldSyntax::Attachments) {
        writeAttachments(*field, indent);
        reportBindings(owner, *field);
    } else if (syntax.kind == FieldSyntax::Pointers) {
        writePointers(*field, indent);
        reportEmptyPlaces(owner, *field, description.getCName());
    } else {
        AsciiValues values(_keepsWhiteSpace, owner->getTypeName(), description.getCName());
        writeValues(*field, syntax, values, indent);
    }
}

// Deliberate: the closing bracket of the list has a blank before and after it.
void AsciiWriter::writeAttachments(const Field &field, UInt32 indent)
{
    bool isFirst = true;
    _text += " [ ";
    forEachAttachment(field, [&](const FieldContainerPtr &attachment) {
        _text += isFirst ? "\n" : "";
        isFirst = false;
        writeContainer(attachment, indent + indentStep);
    });
    newLine(isFirst ? 0 : indent);
    _text += " ] \n";
}

void AsciiWriter::writePointers(const Field &field, UInt32 indent)
{
    if (field.getCardinality() == FieldType::MULTI_FIELD) {
        _text += " [\n";
        for (UInt32 i = 0; i < field.getSize(); ++i) {
            writePointer(field.getFieldContainer(i), indent + indentStep);
        }
        newLine(indent);
        _text += "]\n";
    } else if (const FieldContainerPtr target = field.getFieldContainer()) {
        _text += '\n';
        writeContainer(target, indent + indentStep);
    } else {
        _text += " NULL\n";
    }
}

void AsciiWriter::writePointer(const FieldContainerPtr &target, UInt32 indent)
{
    if (target) {
        writeContainer(target, indent);
    } else {
        newLine(indent);
        _text += "NULL\n";
    }
}

void AsciiWriter::writeValues(
    const Field &field, const FieldSyntax &syntax, AsciiValues &values, UInt32 indent)
{
    if (field.getCardinality() == FieldType::MULTI_FIELD) {
        _text += " [\n";
        _text += values.write(field, syntax, indent + indentStep, listWidth);
        _text += '\n';
        newLine(indent);
        _text += "]\n";
    } else {
        _text.append(" ").append(values.write(field, syntax, 0, unlimitedWidth)).append("\n");
    }
}

void AsciiWriter::flush(std::size_t limit)
{
    if (_text.size() > limit) {
        _out.write(_text.data(), static_cast<std::streamsize>(_text.size()));
        _text.clear();
    }
}

OSG_END_NAMESPACE
