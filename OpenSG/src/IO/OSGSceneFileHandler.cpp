#include <OpenSG/OSGSceneFileHandler.h>

#include "IO/OSGAsciiFileType.h"
#include "IO/OSGTemporaryReferences.h"

#include <OpenSG/OSGFieldContainerFactory.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGLog.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <iterator>
#include <string>
#include <strings.h>
#include <utility>
#include <vector>

OSG_BEGIN_NAMESPACE

namespace {

GraphOpSeq standardSequence("SharePtr(includes=Material,StateChunk)");

// Calls a callback with the progress in per cent, but not more often than a user can see.
class ThrottledProgress
{
public:
    explicit ThrottledProgress(SceneFileHandler::progresscbfp callback)
        : _callback(callback)
    {
        if (_callback) {
            _callback(0);
        }
    }

    void operator()(std::size_t done, std::size_t total)
    {
        const auto now = std::chrono::steady_clock::now();
        if (_callback && total > 0 && now - _last >= interval) {
            _last = now;
            _callback(static_cast<UInt32>(done * 100 / total));
        }
    }

private:
    static constexpr std::chrono::milliseconds interval { 100 };

    SceneFileHandler::progresscbfp _callback;
    std::chrono::steady_clock::time_point _last = std::chrono::steady_clock::now();
};

void tell(SceneFileHandler::filenamecbfp callback, const Char8 *fileName)
{
    if (callback) {
        callback(fileName);
    }
}

bool hasPlaceInScene(const FieldContainerPtr &container)
{
    return NodePtr::dcast(container) || NodeCorePtr::dcast(container);
}

// Makes the root of the scene. A node that the file uses again further down has a parent already.
NodePtr makeRoot(const FCPtrStore &containers)
{
    const NodePtr root = makeCoredNode<Group>();
    beginEditCP(root, Node::ChildrenFieldMask);
    for (const FieldContainerPtr &container : containers) {
        const NodePtr node = NodePtr::dcast(container);
        if (!node) {
            root->addChild(makeNodeFor(NodeCorePtr::dcast(container)));
        } else if (!node->getParent()) {
            root->addChild(node);
        }
    }
    endEditCP(root, Node::ChildrenFieldMask);
    return root;
}

typedef std::vector<std::pair<UInt32, std::string>> NamesById;

void reportLost(const NamesById &names)
{
    for (const auto &[id, type] : names) {
        if (FieldContainerFactory::the()->getContainer(id) == NullFC) {
            SWARNING << "A " << type << " at the top is left out: nothing in the scene leads to it"
                     << endLog;
        }
    }
}

// Makes the scene. Containers that cannot be part of a scene are destroyed, with everything that
// only they refer to. Returns null if nothing is left.
NodePtr gather(const FCPtrStore &containers)
{
    FCPtrStore strangers;
    std::remove_copy_if(
        containers.begin(), containers.end(), std::back_inserter(strangers), hasPlaceInScene);
    NamesById names;
    for (const FieldContainerPtr &stranger : strangers) {
        names.emplace_back(stranger.getFieldContainerId(), stranger->getTypeName());
    }
    TemporaryReferences references;
    references.addAllFrom(strangers);
    const NodePtr root = strangers.size() < containers.size() ? makeRoot(containers) : NodePtr();
    references.release({ root });
    if (root) {
        reportLost(names);
    }
    return root;
}

// Containers that the operations remove from the scene must exist until all operations have run,
// because pointers without a reference may lead to them.
FCPtrStore withOperations(FCPtrStore containers, GraphOpSeq *operations)
{
    if (!operations) {
        return containers;
    }
    TemporaryReferences references;
    references.addAllFrom(containers);
    for (FieldContainerPtr &container : containers) {
        if (NodePtr root = NodePtr::dcast(container)) {
            operations->traverse(root);
            container = root;
        }
    }
    references.release(containers);
    return containers;
}

NodePtr withOperations(const NodePtr &root, GraphOpSeq *operations)
{
    return NodePtr::dcast(withOperations(FCPtrStore { root }, operations).front());
}

// Used in the log.
constexpr const Char8 *streamName = "the stream";

void reportNoScene(const Char8 *name)
{
    SWARNING << "There is no scene in " << name << endLog;
}

} // namespace

GraphOpSeq *SceneFileHandler::_defaultgraphOpSeq = &standardSequence;

SceneFileHandler &SceneFileHandler::the()
{
    static SceneFileHandler handler;
    return handler;
}

SceneFileHandler::SceneFileHandler()
{
    _types.push_back(std::make_unique<AsciiFileType>());
}

NodePtr SceneFileHandler::read(const Char8 *fileName, GraphOpSeq *graphOpSeq)
{
    std::ifstream file;
    const SceneFileType *type = open(fileName, file);
    if (!type) {
        return NullFC;
    }
    tell(_readBegin, fileName);
    const NodePtr root = withOperations(readScene(*type, file, fileName), graphOpSeq);
    tell(_readEnd, fileName);
    return root;
}

NodePtr SceneFileHandler::read(std::istream &is, const Char8 *ext, GraphOpSeq *graphOpSeq)
{
    const SceneFileType *type = findType(ext, SceneFileType::OSG_READ_SUPPORTED);
    return type ? withOperations(readScene(*type, is, streamName), graphOpSeq) : NodePtr();
}

FCPtrStore SceneFileHandler::readTopNodes(const Char8 *fileName, GraphOpSeq *graphOpSeq)
{
    std::ifstream file;
    const SceneFileType *type = open(fileName, file);
    if (!type) {
        return FCPtrStore();
    }
    tell(_readBegin, fileName);
    const FCPtrStore containers = withOperations(readContainers(*type, file, fileName), graphOpSeq);
    tell(_readEnd, fileName);
    return containers;
}

FCPtrStore SceneFileHandler::readTopNodes(
    std::istream &is, const Char8 *ext, GraphOpSeq *graphOpSeq)
{
    const SceneFileType *type = findType(ext, SceneFileType::OSG_READ_SUPPORTED);
    return type ? withOperations(readContainers(*type, is, streamName), graphOpSeq) : FCPtrStore();
}

bool SceneFileHandler::write(const NodePtr &node, const Char8 *fileName, bool)
{
    const SceneFileType *type = findType(fileName, SceneFileType::OSG_WRITE_SUPPORTED);
    if (!type || !node) {
        return false;
    }
    std::ofstream file(fileName, std::ios::binary);
    if (!file) {
        SWARNING << "Couldn't open file " << fileName << endLog;
        return false;
    }
    const ThrottledProgress start(_writeProgress);
    tell(_writeBegin, fileName);
    const bool ok = writeScene(*type, node, file, fileName);
    tell(_writeEnd, fileName);
    return ok;
}

bool SceneFileHandler::write(const NodePtr &node, std::ostream &os, const Char8 *ext, bool)
{
    const SceneFileType *type = findType(ext, SceneFileType::OSG_WRITE_SUPPORTED);
    return type && node && writeScene(*type, node, os, streamName);
}

SceneFileType *SceneFileHandler::getFileType(const Char8 *fileNameOrExtension)
{
    const std::string name = fileNameOrExtension ? fileNameOrExtension : "";
    const std::string suffix = name.substr(name.rfind('.') + 1);
    for (const auto &type : _types) {
        for (const std::string &known : type->getSuffixes()) {
            if (strcasecmp(known.c_str(), suffix.c_str()) == 0) {
                return type.get();
            }
        }
    }
    return nullptr;
}

int SceneFileHandler::getSuffixList(std::list<const Char8 *> &result, UInt32 flags)
{
    int count = 0;
    for (const auto &type : _types) {
        if (type->getFlags() & flags) {
            for (const std::string &suffix : type->getSuffixes()) {
                result.push_back(suffix.c_str());
                ++count;
            }
        }
    }
    return count;
}

bool SceneFileHandler::setOptions(const Char8 *suffix, const Char8 *options)
{
    SceneFileType *type = getFileType(suffix);
    if (type) {
        type->setOptions(options);
    }
    return type;
}

const SceneFileType *SceneFileHandler::findType(const Char8 *fileNameOrExtension, UInt32 flag)
{
    const SceneFileType *type = getFileType(fileNameOrExtension);
    if (!type || !(type->getFlags() & flag)) {
        SWARNING << "Unknown scene file format: "
                 << (fileNameOrExtension ? fileNameOrExtension : "") << endLog;
        return nullptr;
    }
    return type;
}

// Opens the file and returns its type. Returns NULL if it cannot be read.
const SceneFileType *SceneFileHandler::open(const Char8 *fileName, std::ifstream &file)
{
    const SceneFileType *type = findType(fileName, SceneFileType::OSG_READ_SUPPORTED);
    if (!type) {
        return nullptr;
    }
    file.open(getPathHandler()->findFile(fileName), std::ios::binary);
    if (!file) {
        SWARNING << "Couldn't open file " << fileName << endLog;
        return nullptr;
    }
    return type;
}

NodePtr SceneFileHandler::readScene(const SceneFileType &type, std::istream &is, const Char8 *name)
{
    const NodePtr root = gather(type.readTopNodes(is, ThrottledProgress(_readProgress)));
    if (!root) {
        reportNoScene(name);
    }
    return root;
}

FCPtrStore SceneFileHandler::readContainers(
    const SceneFileType &type, std::istream &is, const Char8 *name)
{
    const FCPtrStore containers = type.readTopNodes(is, ThrottledProgress(_readProgress));
    if (containers.empty()) {
        reportNoScene(name);
    }
    return containers;
}

bool SceneFileHandler::writeScene(
    const SceneFileType &type, const NodePtr &node, std::ostream &os, const Char8 *name)
{
    const bool ok = type.write(node, os, ThrottledProgress(_writeProgress)) && os.flush();
    if (!ok) {
        SWARNING << "Couldn't write the scene to " << name << endLog;
    }
    return ok;
}

OSG_END_NAMESPACE
