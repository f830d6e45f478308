#include "Views/kavoCoreIcons.h"

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGGroup.h>
#include <OpenSG/OSGLight.h>
#include <OpenSG/OSGMaterialGroup.h>
#include <OpenSG/OSGTransform.h>

#include <QHash>
#include <kavoIconManager.h>

namespace {

struct Row
{
    const osg::FieldContainerType &type;
    const char *key;
};

/// The first type that a core derives from decides, so derived types come before their bases.
const char *iconKey(const osg::FieldContainerType &type)
{
    static const Row rows[] = {
        { osg::MaterialGroup::getClassType(), "Material" },
        { osg::Light::getClassType(), "Light" },
        { osg::Transform::getClassType(), "Transform" },
        { osg::Geometry::getClassType(), "Geometry" },
        { osg::Group::getClassType(), "Group" },
    };
    for (const Row &row : rows) {
        if (type.isDerivedFrom(row.type))
            return row.key;
    }
    return "Node";
}

} // namespace

QIcon kavoCoreIcons::icon(const osg::NodeCorePtr &core)
{
    if (core == osg::NullFC)
        return kavoIconManager::getIcon("Node");
    static auto *const icons = new QHash<osg::UInt32,
        QIcon>; // never destroyed: icons must not be destroyed after the application object
    QIcon &icon = (*icons)[core->getTypeId()];
    if (icon.isNull())
        icon = kavoIconManager::getIcon(iconKey(core->getType()));
    return icon;
}
