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

    /// Called often, with the amount that is done and the total amount.
    typedef std::function<void(std::size_t done, std::size_t total)> Progress;

    SceneFileType(const Char8 *name, std::vector<std::string> suffixes, UInt32 flags);
    virtual ~SceneFileType() = default;
    SceneFileType(const SceneFileType &) = delete;
    SceneFileType &operator=(const SceneFileType &) = delete;

    /// The name of the format for users.
    const Char8 *getName() const { return _name.c_str(); }
    /// Lower case, without the dot.
    const std::vector<std::string> &getSuffixes() const { return _suffixes; }
    UInt32 getFlags() const { return _flags; }

    /// The derived class documents the options of the format. Unknown options are ignored.
    virtual void setOptions(const Char8 *options) { _options = options ? options : ""; }
    const Char8 *getOptions() const { return _options.c_str(); }

    /// Returns the containers at the top of a file, without references. Errors are reported in the
    /// log and skipped.
    virtual FCPtrStore readTopNodes(std::istream &is, const Progress &progress) const = 0;
    /// Returns false, with a line in the log, if the scene was not written completely.
    virtual bool write(const NodePtr &node, std::ostream &os, const Progress &progress) const = 0;

private:
    std::string _name;
    std::vector<std::string> _suffixes;
    UInt32 _flags;
    std::string _options;
};

OSG_END_NAMESPACE
