#include "OSGAsciiReader.h"

#include "OSGAsciiFormat.h"
#include "OSGFieldSyntax.h"

#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGLog.h>
#include <OpenSG/OSGNode.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <algorithm>
#include <unordered_set>

OSG_BEGIN_NAMESPACE

namespace {

constexpr UInt32 editOrigin
    = ChangedOrigin::Abstract | ChangedOrigin::AbstrIgnoreCore | ChangedOrigin::AbstrIgnoreChild;
constexpr std::string_view byteOrderMark = "\xef\xbb\xbf";
constexpr std::size_t shownTokenLength = 60;

bool startsWith(std::string_view text, std::string_view start)
{
    return text.substr(0, start.size()) == start;
}

std::string_view withoutByteOrderMark(std::string_view text)
{
    return startsWith(text, byteOrderMark) ? text.substr(byteOrderMark.size()) : text;
}

// To the scanner the line is a comment.
void checkHeader(std::string_view text)
{
    if (startsWith(text, "#") && !startsWith(text, AsciiFormat::header)) {
        const std::string_view line = text.substr(0, text.find_first_of("\r\n"));
        SLOG << "File begins with '" << line.substr(0, shownTokenLength) << "' instead of '"
             << AsciiFormat::header << "'" << endLog;
    }
}

void addDefaultCore(const NodePtr &node)
{
    if (node && !node->getCore()) {
        beginEditCP(node, Node::CoreFieldMask);
        node->setCore(Group::create());
        endEditCP(node, Node::CoreFieldMask);
    }
}

// An internal pointer is the other side of one that stands elsewhere in the file.
bool isReadable(const FieldContainerPtr &owner, const FieldDescription &description)
{
    const Field *field = owner->getField(description.getFieldId());
    return field
        && !(description.isInternal()
            && FieldSyntax::of(field->getType()).kind == FieldSyntax::Pointers);
}

} // namespace

AsciiReader::AsciiReader(std::string_view text, SceneFileType::Progress progress)
    : _scanner(withoutByteOrderMark(text))
    , _value(_scanner)
    , _progress(std::move(progress))
    , _size(text.size())
{
    checkHeader(withoutByteOrderMark(text));
}

FCPtrStore AsciiReader::read()
{
    FCPtrStore containers;
    std::unordered_set<UInt32> ids;
    while (!at(SceneToken::End)) {
        const FieldContainerPtr container = readTop();
        if (container && ids.insert(container.getFieldContainerId()).second) {
            containers.push_back(container);
        }
    }
    _keeper.release(containers);
    return containers;
}

FieldContainerPtr AsciiReader::readTop()
{
    if (atNode()) {
        return readContainer(nullptr);
    }
    fail();
    while (!at(SceneToken::End) && !atNode()) {
        skipGroup();
    }
    return NullFC;
}

FieldContainerPtr AsciiReader::readContainer(const PointerField *target)
{
    if (atWord("USE")) {
        return readUse(target);
    }
    std::string name;
    if (atWord("DEF")) {
        _scanner.advance();
        if (!at(SceneToken::Identifier)) {
            fail();
            return NullFC;
        }
        name = _scanner.token().text;
        _scanner.advance();
    }
    const FieldContainerPtr container = create(name, target);
    if (container) {
        readBody(container);
    }
    return container;
}

FieldContainerPtr AsciiReader::create(const std::string &name, const PointerField *target)
{
    const FieldContainerType *type = typeAtToken();
    const bool isAccepted = type && !type->isAbstract() && (!target || target->accepts(*type));
    if (!isAccepted || _open.size() == AsciiFormat::maxDepth) {
        fail();
        skipNode();
        return NullFC;
    }
    _scanner.advance();
    if (!at(SceneToken::OpenBrace)) {
        fail();
        return NullFC;
    }
    _progress(_scanner.position(), _size);
    const FieldContainerPtr container = type->createFieldContainer();
    _keeper.keep(container);
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
    _scanner.advance();
    if (!at(SceneToken::Identifier)) {
        fail();
        return NullFC;
    }
    const auto found = _definitions.find(std::string(_scanner.token().text));
    const FieldContainerPtr container
        = found != _definitions.end() ? found->second : FieldContainerPtr();
    if (!container) {
        SLOG << "No FieldContainer found with name " << _scanner.token().text << endLog;
    }
    const bool fits = container && target && target->accepts(container->getType())
        && !(isOpen(container) && target->mustBeTree(container->getType()));
    if (container && target && !fits) {
        fail();
    }
    _scanner.advance();
    return fits || !target ? container : FieldContainerPtr();
}

void AsciiReader::readBody(const FieldContainerPtr &container)
{
    _open.push_back(container);
    _scanner.advance();
    while (!at(SceneToken::CloseBrace) && !at(SceneToken::End)) {
        if (!readField(container)) {
            skipToField(container);
        }
    }
    if (at(SceneToken::End)) {
        fail();
    }
    _scanner.advance();
    _open.pop_back();
    addDefaultCore(NodePtr::dcast(container));
}

bool AsciiReader::readField(const FieldContainerPtr &owner)
{
    const FieldDescription *description = fieldAtToken(owner);
    if (!description) {
        return fail();
    }
    _scanner.advance();
    Field &field = *owner->getField(description->getFieldId());
    const FieldSyntax syntax = FieldSyntax::of(field.getType());
    const bool isPointers
        = syntax.kind == FieldSyntax::Pointers || syntax.kind == FieldSyntax::Attachments;
    beginEditCP(owner, description->getFieldMask(), editOrigin);
    const bool ok
        = isPointers ? readPointers(PointerField(owner, field)) : readValues(field, syntax);
    endEditCP(owner, description->getFieldMask(), editOrigin);
    return ok;
}

bool AsciiReader::readPointers(PointerField field)
{
    if (!field.isList() || !at(SceneToken::OpenBracket)) {
        return readPointer(field);
    }
    _scanner.advance();
    while (!at(SceneToken::CloseBracket)) {
        if (!readListedPointer(field, _open.back()->getType())) {
            return false;
        }
    }
    _scanner.advance();
    return true;
}

// A list goes on behind an element of an unknown type, unless it lacks its bracket.
bool AsciiReader::readListedPointer(PointerField &field, const FieldContainerType &owner)
{
    const std::string word(_scanner.token().text);
    const bool isField = at(SceneToken::Identifier) && owner.findFieldDescription(word.c_str());
    if (at(SceneToken::Identifier) && !typeAtToken() && !isField) {
        fail();
        skipNode();
        return true;
    }
    return readPointer(field);
}

bool AsciiReader::readPointer(PointerField &field)
{
    if (atWord("NULL")) {
        _scanner.advance();
        field.add(NullFC);
        return true;
    }
    if (!atNode()) {
        return fail();
    }
    if (const FieldContainerPtr container = readContainer(&field)) {
        field.add(container);
    }
    return true;
}

bool AsciiReader::readValues(Field &field, const FieldSyntax &syntax)
{
    if (!syntax.isList || !at(SceneToken::OpenBracket)) {
        return readValue(field, syntax);
    }
    _scanner.advance();
    while (!at(SceneToken::CloseBracket)) {
        if (!readValue(field, syntax)) {
            return false;
        }
    }
    _scanner.advance();
    return true;
}

bool AsciiReader::readValue(Field &field, const FieldSyntax &syntax)
{
    if (!_value.read(syntax)) {
        return fail();
    }
    field.pushValueByStr(_value.text().c_str());
    return true;
}

bool AsciiReader::atWord(std::string_view word) const
{
    return at(SceneToken::Reserved) && _scanner.token().text == word;
}

bool AsciiReader::atNode() const
{
    return atWord("DEF") || atWord("USE") || typeAtToken();
}

FieldContainerType *AsciiReader::typeAtToken() const
{
    const std::string word(_scanner.token().text);
    return at(SceneToken::Identifier) ? FieldContainerFactory::the()->findType(word.c_str())
                                      : nullptr;
}

FieldDescription *AsciiReader::fieldAtToken(const FieldContainerPtr &owner) const
{
    const std::string word(_scanner.token().text);
    FieldDescription *description = at(SceneToken::Identifier)
        ? owner->getType().findFieldDescription(word.c_str())
        : nullptr;
    return description && isReadable(owner, *description) ? description : nullptr;
}

bool AsciiReader::isOpen(const FieldContainerPtr &container) const
{
    return std::find(_open.begin(), _open.end(), container) != _open.end();
}

// One line for each token, however many levels fail at it.
bool AsciiReader::fail()
{
    const SceneToken &token = _scanner.token();
    if (_reportedPosition != _scanner.position()) {
        _reportedPosition = _scanner.position();
        SWARNING << "-----> parse error in Line " << token.line << ", read '"
                 << token.text.substr(0, shownTokenLength) << "'" << endLog;
    }
    return false;
}

// A token, or all up to the bracket that closes the one it is.
void AsciiReader::skipGroup()
{
    UInt32 depth = 0;
    do {
        if (at(SceneToken::OpenBrace) || at(SceneToken::OpenBracket)) {
            ++depth;
        } else if (depth > 0 && (at(SceneToken::CloseBrace) || at(SceneToken::CloseBracket))) {
            --depth;
        }
        _scanner.advance();
    } while (depth > 0 && !at(SceneToken::End));
}

// What should have been a container: perhaps its type, perhaps its body.
void AsciiReader::skipNode()
{
    if (at(SceneToken::Identifier)) {
        _scanner.advance();
    }
    if (at(SceneToken::OpenBrace)) {
        skipGroup();
    }
}

void AsciiReader::skipToField(const FieldContainerPtr &owner)
{
    while (!at(SceneToken::End) && !at(SceneToken::CloseBrace) && !fieldAtToken(owner)) {
        skipGroup();
    }
}

OSG_END_NAMESPACE
