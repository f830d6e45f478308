#pragma once

#include <OpenSG/OSGGraphOpSeq.h>
#include <OpenSG/OSGPathHandler.h>
#include <OpenSG/OSGSceneFileType.h>

#include <iosfwd>
#include <list>
#include <memory>
#include <string>
#include <vector>

OSG_BEGIN_NAMESPACE

/// Reads and writes scene files. The suffix of a file name selects the format, in any letter case.
/// The suffix alone may be given, too. There is one format: "osg", the ASCII format.
///
/// Containers can be nested 1000 levels deep. The reader reports deeper containers in the log and
/// skips them. The writer does not write a scene with deeper containers.
///
/// The results of a read have no references. The caller adds the first reference or destroys them.
class SceneFileHandler
{
public:
    typedef void (*progresscbfp)(UInt32 p);
    typedef void (*filenamecbfp)(const Char8 *fname);

    static SceneFileHandler &the();
    virtual ~SceneFileHandler() = default;

    /// Returns a new root with a Group core. Its children are the nodes and cores at the top of the
    /// file. Returns null, with a line in the log, if there is no such file or format or if the
    /// file has no node or core.
    ///
    /// The operations of `graphOpSeq` are applied to the scene. The default sequence merges equal
    /// materials and state chunks. NULL leaves the scene unchanged.
    virtual NodePtr read(const Char8 *fileName, GraphOpSeq *graphOpSeq = _defaultgraphOpSeq);
    virtual NodePtr read(
        std::istream &is, const Char8 *ext, GraphOpSeq *graphOpSeq = _defaultgraphOpSeq);

    /// Returns all containers at the top of the file. Returns an empty list, with a line in the
    /// log, if there are none. The operations are applied to the nodes among them.
    virtual FCPtrStore readTopNodes(
        const Char8 *fileName, GraphOpSeq *graphOpSeq = _defaultgraphOpSeq);
    virtual FCPtrStore readTopNodes(
        std::istream &is, const Char8 *ext, GraphOpSeq *graphOpSeq = _defaultgraphOpSeq);

    /// Writes a scene and all containers that it refers to. Returns false for null and leaves the
    /// file alone. Returns false, with a line in the log, if writing fails; the file is then
    /// incomplete. The ASCII format ignores `compress`.
    virtual bool write(const NodePtr &node, const Char8 *fileName, bool compress = false);
    virtual bool write(
        const NodePtr &node, std::ostream &os, const Char8 *ext, bool compress = false);

    /// Returns NULL if the format is unknown.
    virtual SceneFileType *getFileType(const Char8 *fileNameOrExtension);
    /// Appends the suffixes of formats with these flags and returns their count.
    virtual int getSuffixList(std::list<const Char8 *> &result,
        UInt32 flags = SceneFileType::OSG_READ_SUPPORTED | SceneFileType::OSG_WRITE_SUPPORTED);

    /// The progress is in per cent and starts with 0. Callbacks are called on the thread that reads
    /// or writes. Begin and end get the name of the file; they are not called for a stream.
    void setReadProgressCB(progresscbfp callback, bool = true) { _readProgress = callback; }
    void setReadBeginCB(filenamecbfp callback) { _readBegin = callback; }
    void setReadEndCB(filenamecbfp callback) { _readEnd = callback; }
    void setWriteProgressCB(progresscbfp callback) { _writeProgress = callback; }
    void setWriteBeginCB(filenamecbfp callback) { _writeBegin = callback; }
    void setWriteEndCB(filenamecbfp callback) { _writeEnd = callback; }

    /// Finds the files to read.
    virtual PathHandler *getPathHandler() { return &_pathHandler; }

    virtual GraphOpSeq *getDefaultGraphOp() { return _defaultgraphOpSeq; }
    /// The caller keeps the ownership of the sequence. NULL means no operations.
    virtual void setDefaultGraphOp(GraphOpSeq *graphOpSeq) { _defaultgraphOpSeq = graphOpSeq; }

    /// Sets all options of a format, separated by blanks. Returns false if the format is unknown.
    /// Options of "osg":
    /// - `whitespace=keep` writes blanks and line ends in strings unchanged. Other writers of the
    ///   format change them.
    /// - `lists=replace` reads lists as they were written. Values in the file replace the values in
    ///   the field of a new container; without the option they are appended. Lists of pointers keep
    ///   their empty places.
    virtual bool setOptions(const Char8 *suffix, const Char8 *options);

protected:
    SceneFileHandler();

    static GraphOpSeq *_defaultgraphOpSeq;

private:
    const SceneFileType *findType(const Char8 *fileNameOrExtension, UInt32 flag);
    const SceneFileType *open(const Char8 *fileName, std::ifstream &file);
    NodePtr readScene(const SceneFileType &type, std::istream &is, const Char8 *name);
    FCPtrStore readContainers(const SceneFileType &type, std::istream &is, const Char8 *name);
    bool writeScene(
        const SceneFileType &type, const NodePtr &node, std::ostream &os, const Char8 *name);

    std::vector<std::unique_ptr<SceneFileType>> _types;
    PathHandler _pathHandler;
    progresscbfp _readProgress = nullptr;
    filenamecbfp _readBegin = nullptr;
    filenamecbfp _readEnd = nullptr;
    progresscbfp _writeProgress = nullptr;
    filenamecbfp _writeBegin = nullptr;
    filenamecbfp _writeEnd = nullptr;
};

OSG_END_NAMESPACE
