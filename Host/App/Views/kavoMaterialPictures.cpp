#include "Views/kavoMaterialPictures.h"

#include "Scene/kavoChanges.h"
#include "Scene/kavoContainers.h"
#include "Views/kavoMaterialSwatch.h"

#include <QPixmap>

#include <algorithm>

const QIcon &kavoMaterialPictures::picture(osg::UInt32 material)
{
    const auto found = m_pictures.constFind(material);
    if (found != m_pictures.constEnd())
        return found->icon;
    const auto look = kavoMaterialLook::of(osg::MaterialPtr::dcast(kavoContainers::find(material)));
    const QImage image = kavoMaterialSwatch(look, size).render();
    return m_pictures.insert(material, { QPixmap::fromImage(image), look.sources })->icon;
}

QSet<osg::UInt32> kavoMaterialPictures::dropOutdated(const kavoChanges &changes)
{
    const auto isTouched = [&](osg::UInt32 id) { return changes.touched.contains(id); };
    QSet<osg::UInt32> outdated;
    for (auto picture = m_pictures.cbegin(); picture != m_pictures.cend(); ++picture) {
        if (std::any_of(picture->sources.begin(), picture->sources.end(), isTouched))
            outdated.insert(picture.key());
    }
    for (const osg::UInt32 material : qAsConst(outdated))
        m_pictures.remove(material);
    return outdated;
}
