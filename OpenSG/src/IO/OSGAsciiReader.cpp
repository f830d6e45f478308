#include "IO/OSGAsciiReader.h"

#include "Fields/OSGFieldSyntax.h"
#include "IO/OSGAsciiFormat.h"

#include <OpenSG/OSGFieldFactory.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGLog.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <algorithm>
#include <memory>
#include <unordered_set>

OSG_BEGIN_NAMESPACE

namespace {

constexpr UInt32 editOrigin
    = ChangedOrigin::Abstract | ChangedOrigin::AbstrIgnoreCore | ChangedOrigin::AbstrIgnoreChild;
constexpr std::string_view byteOrderMark = "\xef\xbb\xbf";
constexpr std::size_t shownHeaderLength = 60;

bool startsWith(std::string_view text, std::string_view start)
{
    return text.substr(0, start.size()) == start;
}

std::string_view withoutByteOrderMark(std::string_view text)
{
    return startsWith(text, byteOrderMark) ? text.substr(byteOrderMark.size()) : text;
}

// Checked here, because for the scanner the line is a comment.
void checkHeader(std::string_view text)
{
    if (startsWith(text, "#") && !startsWith(text, AsciiFormat::header)) {
        const std::string_view line = text.substr(0, text.find_first_of("\r\n"));
        SLOG << "File begins with '" << line.substr(0, shownHeaderLength) << "' instead of '"
             << AsciiFormat::header << "'" << endLog;
    }
}

void clear(Field &field)
{
    const std::unique_ptr<Field> empty(FieldFactory::the().createField(field.getType().getId()));
    field.setAbstrValue(*empty);
}

void addDefaultCore(const NodePtr &node)
{
    if (node && !node->getCore()) {
        beginEditCP(node, Node::CoreFieldMask);
        node->setCore(Group::create());
        endEditCP(node, Node::CoreFieldMask);
    }
}

// An internal pointer is the counterpart of a pointer elsewhere in the file.
bool isReadable(const FieldContainerPtr &owner, const FieldDescription &description)
{
    const Field *field = owner->getField(description.getFieldId());
    return field
        && !(description.isInternal()
            && FieldSyntax::of(field->getType()).kind == FieldSyntax::Pointers);
}

} // namespace

AsciiReader::AsciiReader(
    std::string_view text, bool replacesLists, SceneFileType::Progress progress)
    : _cursor(withoutByteOrderMark(text))
    , _value(_cursor.scanner())
    , _replacesLists(replacesLists)
    , _progress(std::move(progress))
    , _size(text.size())
{
    checkHeader(withoutByteOrderMark(text));
}

FCPtrStore AsciiReader::read()
{
    FCPtrStore containers;
    std::unordered_set<UInt32> ids;
    while (!_cursor.at(SceneToken::End)) {
        const FieldContainerPtr container = readTop();
        if (container && ids.insert(container.getFieldContainerId()).second) {
            containers.push_back(container);
        }
    }
    _references.release(containers);
    return containers;
}

FieldContainerPtr AsciiReader::readTop()
{
    if (_cursor.atNode()) {
        return readContainer(nullptr);
    }
    _cursor.fail();
    while (!_cursor.at(SceneToken::End) && !_cursor.atNode()) {
        _cursor.skipGroup();
    }
    return NullFC;
}

FieldContainerPtr AsciiReader::readContainer(const PointerField *target)
{
    if (_cursor.atWord("USE")) {
        return readUse(target);
    }
    std::string name;
    if (_cursor.atWord("DEF")) {
        _cursor.advance();
        if (!_cursor.at(SceneToken::Identifier)) {
            _cursor.fail();
            return NullFC;
        }
        name = _cursor.word();
        _cursor.advance();
    }
    const FieldContainerPtr container = create(name, target);
    if (container) {
        readBody(container);
    }
    return container;
}

FieldContainerPtr AsciiReader::create(const std::string &name, const PointerField *target)
{
    const FieldContainerType *type = _cursor.typeAtToken();
    const bool isAccepted = type && !type->isAbstract() && (!target || target->accepts(*type));
    if (!isAccepted || _open.size() == AsciiFormat::maxDepth) {
        _cursor.fail();
        _cursor.skipNode();
        return NullFC;
    }
    _cursor.advance();
    if (!_cursor.at(SceneToken::OpenBrace)) {
        _cursor.fail();
        return NullFC;
    }
    _progress(_cursor.position(), _size);
    const FieldContainerPtr container = type->createFieldContainer();
    _references.add(container);
    if (!name.empty()) {
        define(name, container);
    }
    return container;
}

void AsciiReader::define(const std::string &name, const FieldContainerPtr &container)
{
    _definitions.emplace(name, container);
    if (const auto named = AttachmentContainerPtr::dcast(container)) {
        setName(named, name);
    }
}

FieldContainerPtr AsciiReader::readUse(const PointerField *target)
{
    _cursor.advance();
    if (!_cursor.at(SceneToken::Identifier)) {
        _cursor.fail();
        return NullFC;
    }
    const auto found = _definitions.find(_cursor.word());
    const FieldContainerPtr container
        = found != _definitions.end() ? found->second : FieldContainerPtr();
    if (!container) {
        SLOG << "No FieldContainer found with name " << _cursor.word() << endLog;
    }
    const bool fits = container && target && target->accepts(container->getType())
        && !(isOpen(container) && target->mustBeTree(container->getType()));
    if (container && target && !fits) {
        _cursor.fail();
    }
    _cursor.advance();
    return fits || !target ? container : FieldContainerPtr();
}

void AsciiReader::readBody(const FieldContainerPtr &container)
{
    _open.push_back({ container });
    _cursor.advance();
    while (!_cursor.at(SceneToken::CloseBrace) && !_cursor.at(SceneToken::End)) {
        if (!readField(container)) {
            skipToField(container);
        }
    }
    if (_cursor.at(SceneToken::End)) {
        _cursor.fail();
    }
    edit(FieldBits::NoField);
    _cursor.advance();
    _open.pop_back();
    addDefaultCore(NodePtr::dcast(container));
}

bool AsciiReader::readField(const FieldContainerPtr &owner)
{
    const FieldDescription *description = fieldAtToken(owner);
    if (!description) {
        return _cursor.fail();
    }
    _cursor.advance();
    Field &field = *owner->getField(description->getFieldId());
    const FieldSyntax syntax = FieldSyntax::of(field.getType());
    const bool isPointers
        = syntax.kind == FieldSyntax::Pointers || syntax.kind == FieldSyntax::Attachments;
    edit(description->getFieldMask());
    if (!isPointers && startsList(field, *description)) {
        clear(field);
    }
    return isPointers ? readPointers(PointerField(owner, field, _replacesLists))
                      : readValues(field, syntax);
}

// The edit of a field stays open until another field follows. A list may be written element by
// element, and at the end of an edit its owner goes through the whole list.
void AsciiReader::edit(BitVector field)
{
    OpenContainer &open = _open.back();
    if (open.editedField == field) {
        return;
    }
    if (open.editedField != FieldBits::NoField) {
        endEditCP(open.container, open.editedField, editOrigin);
    }
    open.editedField = field;
    if (field != FieldBits::NoField) {
        beginEditCP(open.container, field, editOrigin);
    }
}

// A repeated field continues its list.
bool AsciiReader::startsList(const Field &field, const FieldDescription &description)
{
    BitVector &started = _open.back().startedFields;
    const bool isNew = !(started & description.getFieldMask());
    started |= description.getFieldMask();
    return isNew && _replacesLists && field.getCardinality() == FieldType::MULTI_FIELD;
}

bool AsciiReader::readPointers(PointerField field)
{
    if (!field.isList() || !_cursor.at(SceneToken::OpenBracket)) {
        return readPointer(field);
    }
    _cursor.advance();
    while (!_cursor.at(SceneToken::CloseBracket)) {
        if (!readListedPointer(field, _open.back().container->getType())) {
            return false;
        }
    }
    _cursor.advance();
    return true;
}

// An element of an unknown type is skipped. A field name means that the closing bracket is missing.
bool AsciiReader::readListedPointer(PointerField &field, const FieldContainerType &owner)
{
    const bool isName = _cursor.at(SceneToken::Identifier);
    const bool isField = isName && owner.findFieldDescription(_cursor.word().c_str());
    if (isName && !_cursor.typeAtToken() && !isField) {
        _cursor.fail();
        _cursor.skipNode();
        return true;
    }
    return readPointer(field);
}

bool AsciiReader::readPointer(PointerField &field)
{
    if (_cursor.atWord("NULL")) {
        _cursor.advance();
        field.add(NullFC);
        return true;
    }
    if (!_cursor.atNode()) {
        return _cursor.fail();
    }
    if (const FieldContainerPtr container = readContainer(&field)) {
        field.add(container);
    }
    return true;
}

bool AsciiReader::readValues(Field &field, const FieldSyntax &syntax)
{
    if (!syntax.isList || !_cursor.at(SceneToken::OpenBracket)) {
        return readValue(field, syntax);
    }
    _cursor.advance();
    while (!_cursor.at(SceneToken::CloseBracket)) {
        if (!readValue(field, syntax)) {
            return false;
        }
    }
    _cursor.advance();
    return true;
}

bool AsciiReader::readValue(Field &field, const FieldSyntax &syntax)
{
    if (!_value.read(syntax)) {
        return _cursor.fail();
    }
    field.pushValueByStr(_value.text().c_str());
    return true;
}

FieldDescription *AsciiReader::fieldAtToken(const FieldContainerPtr &owner) const
{
    FieldDescription *description = _cursor.at(SceneToken::Identifier)
        ? owner->getType().findFieldDescription(_cursor.word().c_str())
        : nullptr;
    return description && isReadable(owner, *description) ? description : nullptr;
}

bool AsciiReader::isOpen(const FieldContainerPtr &container) const
{
    return std::any_of(_open.begin(), _open.end(),
        [&](const OpenContainer &open) { return open.container == container; });
}

void AsciiReader::skipToField(const FieldContainerPtr &owner)
{
    while (!_cursor.at(SceneToken::End) && !_cursor.at(SceneToken::CloseBrace)
        && !fieldAtToken(owner)) {
        _cursor.skipGroup();
    }
}

OSG_END_NAMESPACE
