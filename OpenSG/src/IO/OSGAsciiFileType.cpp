#include "OSGAsciiFileType.h"

#include "OSGAsciiReader.h"
#include "OSGAsciiWriter.h"

#include <istream>
#include <iterator>

OSG_BEGIN_NAMESPACE

AsciiFileType::AsciiFileType()
    : SceneFileType("OpenSG Ascii Geometry", { "osg" }, OSG_READ_SUPPORTED | OSG_WRITE_SUPPORTED)
{
}

FCPtrStore AsciiFileType::readTopNodes(std::istream &is, const Progress &progress) const
{
    const std::string text(std::istreambuf_iterator<char>(is), {});
    return AsciiReader(text, progress).read();
}

bool AsciiFileType::write(const NodePtr &node, std::ostream &os, const Progress &progress) const
{
    const bool keepsWhiteSpace
        = std::string(getOptions()).find("whitespace=keep") != std::string::npos;
    return AsciiWriter(os, keepsWhiteSpace, progress).write(node);
}

OSG_END_NAMESPACE
