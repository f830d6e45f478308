#pragma once

#include <OpenSG/OSGNode.h>

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

OSG_BEGIN_NAMESPACE

typedef std::vector<FieldContainerPtr> FCPtrStore;

/// A format of scene files. SceneFileHandler owns one object of each.
class SceneFileType
{
public:
    enum { OSG_READ_SUPPORTED = 0x01, OSG_WRITE_SUPPORTED = 0x02 };

    /// Told often, with how much is done of how much.
    typedef std::function<void(std::size_t done, std::size_t total)> Progress;

    SceneFileType(const Char8 *name, std::vector<std::string> suffixes, UInt32 flags);
    virtual ~SceneFileType() = default;
    SceneFileType(const SceneFileType &) = delete;
    SceneFileType &operator=(const SceneFileType &) = delete;

    /// What users call the format.
    const Char8 *getName() const { return _name.c_str(); }
    /// Lower case, without the dot.
    const std::vector<std::string> &getSuffixes() const { return _suffixes; }
    UInt32 getFlags() const { return _flags; }

    /// What the format understands is told by its class; everything else in it is ignored.
    virtual void setOptions(const Char8 *options) { _options = options ? options : ""; }
    const Char8 *getOptions() const { return _options.c_str(); }

    /// The containers at the top of a file, without references. What cannot be read is reported in
    /// the log and left out.
    virtual FCPtrStore readTopNodes(std::istream &is, const Progress &progress) const = 0;
    /// False, and a line in the log, if the scene did not get into the stream as a whole.
    virtual bool write(const NodePtr &node, std::ostream &os, const Progress &progress) const = 0;

private:
    std::string _name;
    std::vector<std::string> _suffixes;
    UInt32 _flags;
    std::string _options;
};

OSG_END_NAMESPACE
