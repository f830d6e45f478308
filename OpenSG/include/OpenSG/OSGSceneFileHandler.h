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

/// Reads and writes scene files. The format is told by what follows the last dot of a name, in
/// any letter case; it may also be given bare. There is one: "osg", the ASCII format.
///
/// Containers inside each other, nodes and what they refer to, are read and written up to 1000
/// levels deep; what is deeper is reported and left out by the reader, and not written at all.
///
/// What comes of a read has no references yet: the caller takes the first, or destroys it.
class SceneFileHandler
{
public:
    typedef void (*progresscbfp)(UInt32 p);
    typedef void (*filenamecbfp)(const Char8 *fname);

    static SceneFileHandler &the();
    virtual ~SceneFileHandler() = default;

    /// A new root with a Group core; the nodes and cores that stand at the top of the file are
    /// below it. Null, and a line in the log, if there is no such file or format, or no node or
    /// core in the file.
    ///
    /// The operations of `graphOpSeq` are applied to the scene. Those of the default sequence
    /// merge equal materials and state chunks; NULL gives the scene as it is in the file.
    virtual NodePtr read(const Char8 *fileName, GraphOpSeq *graphOpSeq = _defaultgraphOpSeq);
    virtual NodePtr read(
        std::istream &is, const Char8 *ext, GraphOpSeq *graphOpSeq = _defaultgraphOpSeq);

    /// The containers of all types at the top of the file themselves. Empty, and a line in the log,
    /// if there are none. The operations are applied to those that are nodes.
    virtual FCPtrStore readTopNodes(
        const Char8 *fileName, GraphOpSeq *graphOpSeq = _defaultgraphOpSeq);
    virtual FCPtrStore readTopNodes(
        std::istream &is, const Char8 *ext, GraphOpSeq *graphOpSeq = _defaultgraphOpSeq);

    /// Writes a scene and all that it refers to. False for null, which leaves the file alone.
    /// False, and a line in the log, if that failed; what is in the file then is incomplete.
    /// `compress` is for formats that can; the ASCII format cannot.
    virtual bool write(const NodePtr &node, const Char8 *fileName, bool compress = false);
    virtual bool write(
        const NodePtr &node, std::ostream &os, const Char8 *ext, bool compress = false);

    /// NULL if the format is unknown.
    virtual SceneFileType *getFileType(const Char8 *fileNameOrExtension);
    /// Appends the suffixes of formats that can be read or written, as asked for; returns how many.
    virtual int getSuffixList(std::list<const Char8 *> &result,
        UInt32 flags = SceneFileType::OSG_READ_SUPPORTED | SceneFileType::OSG_WRITE_SUPPORTED);

    /// Progress is in per cent, at first 0 and then now and then, always on the thread that reads
    /// or writes. Begin and end tell the name of a file; a stream has none.
    void setReadProgressCB(progresscbfp callback, bool = true) { _readProgress = callback; }
    void setReadBeginCB(filenamecbfp callback) { _readBegin = callback; }
    void setReadEndCB(filenamecbfp callback) { _readEnd = callback; }
    void setWriteProgressCB(progresscbfp callback) { _writeProgress = callback; }
    void setWriteBeginCB(filenamecbfp callback) { _writeBegin = callback; }
    void setWriteEndCB(filenamecbfp callback) { _writeEnd = callback; }

    /// Where files are looked for that are to be read.
    virtual PathHandler *getPathHandler() { return &_pathHandler; }

    virtual GraphOpSeq *getDefaultGraphOp() { return _defaultgraphOpSeq; }
    /// The sequence still belongs to the caller. NULL for none.
    virtual void setDefaultGraphOp(GraphOpSeq *graphOpSeq) { _defaultgraphOpSeq = graphOpSeq; }

    /// Options of a format, all at once and with blanks between them; false if the format is
    /// unknown. Of "osg": `whitespace=keep`, to write the blanks and line ends in strings as they
    /// are, which other writers of the format do not; and `lists=replace`, to read lists as they
    /// were written: values replace those that new containers have in the field, to which they are
    /// appended otherwise, and pointers keep their empty places.
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
