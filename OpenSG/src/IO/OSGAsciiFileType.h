#pragma once

#include <OpenSG/OSGSceneFileType.h>

OSG_BEGIN_NAMESPACE

/// The ASCII format. Its suffix is "osg".
class AsciiFileType : public SceneFileType
{
public:
    AsciiFileType();

    FCPtrStore readTopNodes(std::istream &is, const Progress &progress) const override;
    bool write(const NodePtr &node, std::ostream &os, const Progress &progress) const override;

private:
    bool hasOption(const Char8 *option) const;
};

OSG_END_NAMESPACE
