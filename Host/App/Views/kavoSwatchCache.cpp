#include "Views/kavoSwatchCache.h"

#include "Scene/kavoChanges.h"
#include "Scene/kavoContainers.h"
#include "Views/kavoMaterialSwatch.h"

#include <QPixmap>

#include <algorithm>

const QIcon &kavoSwatchCache::swatch(osg::UInt32 material)
{
    const auto found = m_swatches.constFind(material);
    if (found != m_swatches.constEnd())
        return found->icon;
    const auto look = kavoMaterialLook::of(osg::MaterialPtr::dcast(kavoContainers::find(material)));
    const QImage image = kavoMaterialSwatch(look, size).render();
    return m_swatches.insert(material, { QPixmap::fromImage(image), look.sources })->icon;
}

QSet<osg::UInt32> kavoSwatchCache::dropOutdated(const kavoChanges &changes)
{
    const auto isTouched = [&](osg::UInt32 id) { return changes.touched.contains(id); };
    QSet<osg::UInt32> outdated;
    for (auto swatch = m_swatches.cbegin(); swatch != m_swatches.cend(); ++swatch) {
        if (std::any_of(swatch->sources.begin(), swatch->sources.end(), isTouched))
            outdated.insert(swatch.key());
    }
    for (const osg::UInt32 material : qAsConst(outdated))
        m_swatches.remove(material);
    return outdated;
}
