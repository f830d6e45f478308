#include "IO/OSGAsciiFileType.h"

#include "IO/OSGAsciiReader.h"
#include "IO/OSGAsciiWriter.h"

#include <algorithm>
#include <istream>
#include <iterator>
#include <sstream>
#include <vector>

OSG_BEGIN_NAMESPACE

namespace {

std::string readAll(std::istream &is)
{
    std::string text;
    std::vector<char> block(1 << 16);
    while (is.read(block.data(), static_cast<std::streamsize>(block.size())) || is.gcount() > 0) {
        text.append(block.data(), static_cast<std::size_t>(is.gcount()));
    }
    return text;
}

} // namespace

AsciiFileType::AsciiFileType()
    : SceneFileType("OpenSG Ascii Geometry", { "osg" }, OSG_READ_SUPPORTED | OSG_WRITE_SUPPORTED)
{
}

FCPtrStore AsciiFileType::readTopNodes(std::istream &is, const Progress &progress) const
{
    const std::string text = readAll(is);
    return AsciiReader(text, hasOption("lists=replace"), progress).read();
}

bool AsciiFileType::write(const NodePtr &node, std::ostream &os, const Progress &progress) const
{
    return AsciiWriter(os, hasOption("whitespace=keep"), progress).write(node);
}

bool AsciiFileType::hasOption(const Char8 *option) const
{
    std::istringstream options(getOptions());
    const std::istream_iterator<std::string> end;
    return std::find(std::istream_iterator<std::string>(options), end, option) != end;
}

OSG_END_NAMESPACE
